#pragma once

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <QByteArray>
#include <QImage>
#include <QRect>

#include <optional>
#include <vector>

namespace brimlight::onscreen {

/// A window as the X server describes it.
struct WindowInfo
{
    xcb_window_t id = XCB_WINDOW_NONE;
    QRect frame;
    bool isInputOnly = false;
    bool isOverrideRedirect = false;
    bool isViewable = false;
    QByteArray className;
};

/// The test's own view of the X server.
class XClient
{
public:
    /// Throws when the display cannot be reached.
    explicit XClient(const QByteArray &display);
    ~XClient();
    XClient(const XClient &) = delete;
    XClient &operator=(const XClient &) = delete;

    operator xcb_connection_t *() const { return m_xcb; }
    xcb_window_t root() const { return m_screen->root; }
    const xcb_screen_t &screen() const { return *m_screen; }
    void flush() const { xcb_flush(m_xcb); }
    /// Everything asked so far has been carried out.
    void sync() const;

    xcb_atom_t atom(const char *name) const;
    /// The 32-bit values of a property, empty when it is absent.
    std::vector<uint32_t> property(xcb_window_t window, const char *name) const;
    std::optional<uint32_t> rootValue(const char *name) const;
    /// A client message to the window manager, as pagers send it.
    void tellWindowManager(xcb_window_t window, const char *message,
                           const std::vector<uint32_t> &values) const;
    bool isComposited() const;

    xcb_window_t activeWindow() const;
    xcb_window_t focus() const;
    QPoint pointer() const;
    /// The children of the root, the topmost last.
    std::vector<WindowInfo> windows() const;

    /// What a person sees.
    QImage screenshot() const;
    /// Gives the root a picture on which a shift by a single pixel would show.
    void paintWallpaper();

    QSize size() const;
    /// Sets the screen's mode, making one if needed; never larger than at the start.
    void setSize(QSize size);
    /// Makes `primary` a monitor of its own beside the one at the output, which keeps `rest`.
    void splitMonitors(const QRect &primary, const QRect &rest);
    void joinMonitors();

private:
    WindowInfo describe(xcb_window_t window) const;
    void setMonitor(const char *name, const QRect &area, bool isPrimary, xcb_randr_output_t output);

    xcb_connection_t *m_xcb;
    const xcb_screen_t *m_screen = nullptr;
};

} // namespace brimlight::onscreen
