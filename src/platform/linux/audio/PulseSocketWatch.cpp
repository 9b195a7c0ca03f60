#include "platform/linux/audio/PulseSocketWatch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace brimlight {
namespace {

/// Of a list of servers, the first that is a socket.
QString socketIn(const QString &servers)
{
    for (const QString &server : servers.split(u' ', Qt::SkipEmptyParts)) {
        const qsizetype path = server.indexOf(u'/');
        const QStringView scheme = QStringView(server).left(path);
        if (path >= 0 && (scheme.isEmpty() || scheme.endsWith(u'}') || scheme.endsWith(u"unix:")))
            return server.mid(path);
    }
    return {};
}

/// Whether one of the events is about `name` or about the watched folder itself.
bool concerns(const char *events, ssize_t size, const QByteArray &name)
{
    for (ssize_t at = 0; at < size;) {
        inotify_event event;
        std::memcpy(&event, events + at, sizeof(event));
        const char *subject = events + at + sizeof(event);
        if (event.len == 0 || name == subject)
            return true;
        at += static_cast<ssize_t>(sizeof(event) + event.len);
    }
    return false;
}

} // namespace

QString pulseSocket()
{
    if (const QString servers = qEnvironmentVariable("PULSE_SERVER"); !servers.isEmpty())
        return socketIn(servers);
    if (const QString own = qEnvironmentVariable("PULSE_RUNTIME_PATH"); !own.isEmpty())
        return own + QStringLiteral("/native");
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtime.isEmpty() ? QString() : runtime + QStringLiteral("/pulse/native");
}

PulseSocketWatch::PulseSocketWatch(pa_mainloop_api &api, const QString &socket,
                                   std::function<void()> appeared)
    : m_api(api)
    , m_socket(QDir::cleanPath(socket))
    , m_appeared(std::move(appeared))
{
}

bool PulseSocketWatch::start()
{
    stop();
    if (m_socket.isEmpty())
        return false;
    m_inotify = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    constexpr uint32_t mask = IN_CREATE | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
    QString folder;
    // What is made in between is found by looking again.
    while (folder != existingFolder()) {
        folder = existingFolder();
        if (inotify_add_watch(m_inotify, QFile::encodeName(folder).constData(), mask) < 0) {
            stop();
            return false;
        }
    }
    const QString below = folder.endsWith(u'/') ? folder : folder + u'/';
    m_missing = QFile::encodeName(m_socket.mid(below.size()).section(u'/', 0, 0));
    const auto call = [](pa_mainloop_api *, pa_io_event *, int, pa_io_event_flags_t, void *self) {
        static_cast<PulseSocketWatch *>(self)->changed();
    };
    m_event = m_api.io_new(&m_api, m_inotify, PA_IO_EVENT_INPUT, call, this);
    return true;
}

void PulseSocketWatch::stop()
{
    if (m_event)
        m_api.io_free(m_event);
    m_event = nullptr;
    if (m_inotify >= 0)
        ::close(m_inotify);
    m_inotify = -1;
}

bool PulseSocketWatch::socketExists() const
{
    return QFileInfo::exists(m_socket);
}

QString PulseSocketWatch::existingFolder() const
{
    QString folder = QFileInfo(m_socket).path();
    while (folder != u"/" && !QFileInfo(folder).isDir())
        folder = QFileInfo(folder).path();
    return folder;
}

void PulseSocketWatch::changed()
{
    std::array<char, 4096> events;
    bool concerned = false;
    ssize_t size = 0;
    while ((size = ::read(m_inotify, events.data(), events.size())) > 0)
        concerned |= concerns(events.data(), size, m_missing);
    if (!concerned)
        return;
    // The next folder on the way may have been made, or the watched one removed.
    start();
    if (socketExists())
        m_appeared();
}

} // namespace brimlight
