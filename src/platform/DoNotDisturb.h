#pragma once

namespace brimlight {

/// Whether the user wants to be left alone, as two places of the desktop know it. Asking costs nothing: both
/// values are kept current by whoever knows them. False while unknown.
class DoNotDisturb
{
public:
    virtual ~DoNotDisturb() = default;

    /// The service that shows notifications holds them back.
    virtual bool isInhibited() const = 0;
    /// The settings of the desktop say that notifications show no banners.
    virtual bool hidesBanners() const = 0;
};

} // namespace brimlight
