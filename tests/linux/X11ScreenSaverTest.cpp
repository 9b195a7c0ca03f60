#include "platform/linux/x11/X11ScreenSaver.h"

#include "platform/linux/x11/XcbReply.h"

#include <gtest/gtest.h>
#include <xcb/screensaver.h>

#include <QProcess>

#include <csignal>
#include <poll.h>
#include <sys/prctl.h>

namespace brimlight::test {
namespace {

struct Disconnect
{
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

/// A server whose screen saver starts after the shortest time there is, and who waits for that.
class SavedScreen
{
public:
    SavedScreen()
    {
        m_server.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("64x64x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"), QStringLiteral("-noreset")});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(10000)) {
        }
        m_display = ':' + m_server.readLine().trimmed();
        m_watcher = connect();
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_watcher.get())).data->root;
        xcb_screensaver_select_input(m_watcher.get(), root, XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
        m_root = root;
    }
    ~SavedScreen()
    {
        m_watcher.reset();
        m_server.terminate();
        m_server.waitForFinished();
    }
    SavedScreen(const SavedScreen &) = delete;
    SavedScreen &operator=(const SavedScreen &) = delete;

    Connection connect() const { return Connection(xcb_connect(m_display.constData(), nullptr)); }
    bool works() const { return xcb_connection_has_error(m_watcher.get()) == 0; }
    /// From now on a second without input blanks the screen.
    void arm()
    {
        xcb_set_screen_saver(m_watcher.get(), 1, 0, XCB_BLANKING_PREFERRED, XCB_EXPOSURES_ALLOWED);
        isBlank();
    }
    bool isBlank() const
    {
        const auto info = adopt(xcb_screensaver_query_info_reply(
            m_watcher.get(), xcb_screensaver_query_info(m_watcher.get(), m_root), nullptr));
        return info && info->state == XCB_SCREENSAVER_STATE_ON;
    }
    /// False when it has not been blanked in ten times as long as it takes.
    bool becomesBlank() const
    {
        while (!isBlank()) {
            pollfd waiting{.fd = xcb_get_file_descriptor(m_watcher.get()), .events = POLLIN};
            const auto event = adopt(xcb_poll_for_event(m_watcher.get()));
            if (!event && poll(&waiting, 1, 10000) == 0)
                return isBlank();
        }
        return true;
    }

private:
    QProcess m_server;
    QByteArray m_display;
    Connection m_watcher;
    xcb_window_t m_root = XCB_WINDOW_NONE;
};

class X11ScreenSaverTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(screen.works() && other.works()) << "Xvfb does not start";
        // What would happen to the screen without the suspension is seen on the other, which is armed later.
        program = screen.connect();
        saver.emplace(program.get());
        ASSERT_TRUE(saver->canBeSuspended());
        saver->setSuspended(true);
        EXPECT_TRUE(
            adopt(xcb_get_input_focus_reply(program.get(), xcb_get_input_focus(program.get()), nullptr)));
        screen.arm();
        other.arm();
        ASSERT_TRUE(other.becomesBlank());
        ASSERT_FALSE(screen.isBlank());
    }

    SavedScreen screen;
    SavedScreen other;
    Connection program;
    std::optional<X11ScreenSaver> saver;
};

} // namespace

TEST_F(X11ScreenSaverTest, TheScreenStaysOnUntilTheSuspensionEnds)
{
    saver->setSuspended(false);
    EXPECT_TRUE(screen.becomesBlank());
}

TEST_F(X11ScreenSaverTest, TheScreenStaysOnUntilTheLastSuspensionEnds)
{
    saver->setSuspended(true);
    saver->setSuspended(false);
    // The end of one of two must not set the timer going.
    SavedScreen third;
    third.arm();
    ASSERT_TRUE(third.becomesBlank());
    EXPECT_FALSE(screen.isBlank());
    saver->setSuspended(false);
    EXPECT_TRUE(screen.becomesBlank());
}

TEST_F(X11ScreenSaverTest, AProgramThatDiesLeavesNothingBehind)
{
    program.reset();
    EXPECT_TRUE(screen.becomesBlank());
}

} // namespace brimlight::test
