#pragma once

#include "OnScreenTest.h"
#include "ScreenReader.h"

namespace brimlight::onscreen {

/// The program with a screen reader beside it. What fades in or out counts as visible meanwhile, so
/// everything here waits until it is as wanted.
class ReadOnEachDesktop : public OnEachDesktop
{
protected:
    bool shows(const QString &role, const QString &name) const;
    bool showsNoMore(const QString &role, const QString &name) const;
    bool isChecked(const QString &role, const QString &name) const;
    bool becomesChecked(const QString &role, const QString &name) const;
    /// Clicks into its middle once it has come to rest.
    void click(const QString &role, const QString &name) const;
    void press(const QString &role, const QString &name) const;

    /// Everything that one can do something with says what it is called and what kind of thing it is.
    void expectNamesAndRoles(int atLeast) const;

    std::optional<ScreenReader> reader{session};

private:
    /// A line for each control that keeps a secret, and one for too few of them.
    QStringList secrets(int atLeast) const;
};

} // namespace brimlight::onscreen
