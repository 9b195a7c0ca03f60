#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QHash>
#include <QList>

#include <functional>
#include <memory>

namespace brimlight {

/// Qt's own connection to the X server, and its events before Qt sees them.
class X11Connection : public QAbstractNativeEventFilter
{
public:
    /// Answers true when the event is used up and Qt must not see it.
    using Listener = std::function<bool(const xcb_generic_event_t &)>;

    /// Stops listening when destroyed.
    class Listening
    {
    public:
        Listening(X11Connection &connection, Listener listener);
        ~Listening();
        Listening(const Listening &) = delete;
        Listening &operator=(const Listening &) = delete;

    private:
        friend class X11Connection;
        X11Connection &m_connection;
        Listener m_listener;
    };

    /// Null when the application does not run on X11.
    static std::unique_ptr<X11Connection> ofApplication();
    ~X11Connection() override;

    xcb_connection_t *xcb() const { return m_xcb; }
    operator xcb_connection_t *() const { return m_xcb; }
    xcb_window_t root() const { return m_root; }
    xcb_atom_t atom(const char *name) const;
    void flush() const { xcb_flush(m_xcb); }

    /// The server is XWayland: it does not know where the pointer is while that is over no X11 window.
    bool isXWayland() const { return m_isXWayland; }
    /// Major opcode of the X Input extension, version 2.2 or later; 0 when it is absent.
    uint8_t inputOpcode() const { return m_inputOpcode; }
    /// Counts who wants raw input events of a type: the server keeps one selection for all of them.
    void selectRawEvents(uint16_t type, int change);
    /// Somebody composites the screen, so that transparent pixels are transparent.
    bool isComposited() const { return m_isComposited; }
    void observeComposited(std::function<void()> changed) { m_compositedChanged = std::move(changed); }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    explicit X11Connection(xcb_connection_t *xcb);

    void watchCompositor();
    void handleSelection(const xcb_generic_event_t &event);

    xcb_connection_t *m_xcb;
    xcb_window_t m_root;
    bool m_isXWayland = false;
    uint8_t m_inputOpcode = 0;
    uint8_t m_fixesEvent = 0;
    xcb_atom_t m_compositorSelection = XCB_ATOM_NONE;
    bool m_isComposited = false;
    std::function<void()> m_compositedChanged;
    QHash<uint16_t, int> m_rawEvents;
    QList<Listening *> m_listenings;
};

} // namespace brimlight
