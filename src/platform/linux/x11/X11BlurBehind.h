#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <functional>
#include <vector>

namespace brimlight {

/// Asks the compositor to blur what lies behind parts of a window.
///
/// A compositor that does so puts the property's name on the root window or into the list of what the window
/// manager supports; some come and go while the program runs.
class X11BlurBehind
{
public:
    X11BlurBehind(X11Connection &connection, xcb_window_t window, std::function<void()> offeredChanged);

    bool isOffered() const { return m_isOffered; }
    /// In pixels of the window; none asks for no blur at all.
    void setRegion(const std::vector<xcb_rectangle_t> &region);

private:
    bool handle(const xcb_generic_event_t &event);
    bool findOffer() const;

    X11Connection &m_connection;
    xcb_window_t m_window;
    std::function<void()> m_offeredChanged;
    xcb_atom_t m_property;
    xcb_atom_t m_supported;
    bool m_isOffered;
    std::vector<uint32_t> m_region;
    X11Connection::Listening m_listening;
};

} // namespace brimlight
