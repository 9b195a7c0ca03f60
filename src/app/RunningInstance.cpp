#include "app/RunningInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace brimlight {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// How often the lock is tried while the other one neither answers nor ends.
constexpr milliseconds retryDelay{20};

std::optional<sockaddr_un> address(const QByteArray &path)
{
    sockaddr_un result{.sun_family = AF_UNIX, .sun_path = {}};
    if (path.size() >= static_cast<qsizetype>(sizeof result.sun_path))
        return std::nullopt;
    std::copy(path.begin(), path.end(), result.sun_path);
    return result;
}

int newSocket()
{
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

QByteArray socketPath(const QString &folder, const QString &name)
{
    return QFile::encodeName(QStringLiteral("%1/%2.socket").arg(folder, name));
}

/// Makes the folder when it is missing. True when it is the user's own and closed to everybody else.
bool isPrivate(const QByteArray &folder)
{
    ::mkdir(folder.constData(), S_IRWXU);
    struct stat status = {};
    // Not through a link that somebody else has put there.
    return ::lstat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

} // namespace

RunningInstance::RunningInstance(const QString &folder, const QString &name)
    : m_lockPath(QFile::encodeName(QStringLiteral("%1/%2.lock").arg(folder, name)))
    , m_socketPath(socketPath(folder, name))
{
}

RunningInstance::~RunningInstance()
{
    m_notifier.reset();
    if (m_socket >= 0)
        ::close(m_socket);
    if (m_lock >= 0)
        ::close(m_lock);
}

RunningInstance::Outcome RunningInstance::claim(milliseconds patience)
{
    const auto deadline = Clock::now() + patience;
    while (!lock()) {
        if (handOver(deadline))
            return Outcome::handedOver;
        if (Clock::now() >= deadline)
            return Outcome::unresponsive;
        // It has the lock and does not listen yet, or has just ended.
        std::this_thread::sleep_for(retryDelay);
    }
    listen();
    return Outcome::first;
}

bool RunningInstance::lock()
{
    // The sticky bit keeps those away who clear up such folders.
    m_lock = ::open(m_lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                    S_ISVTX | S_IRUSR | S_IWUSR);
    if (m_lock < 0 || ::flock(m_lock, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
        return true;
    ::close(m_lock);
    m_lock = -1;
    return false;
}

void RunningInstance::listen()
{
    const auto where = address(m_socketPath);
    if (m_lock < 0 || !where)
        return;
    // What a crash has left; nobody else listens, since the lock is ours.
    ::unlink(m_socketPath.constData());
    m_socket = newSocket();
    constexpr int waiting = 8;
    if (::bind(m_socket, reinterpret_cast<const sockaddr *>(&*where), sizeof *where) != 0 ||
        ::listen(m_socket, waiting) != 0) {
        ::close(m_socket);
        m_socket = -1;
    }
}

/// To connect is the request; one byte comes back once the panel is open.
bool RunningInstance::handOver(Clock::time_point deadline) const
{
    const auto where = address(m_socketPath);
    const int socket = where ? newSocket() : -1;
    bool answered = false;
    if (socket >= 0 && ::connect(socket, reinterpret_cast<const sockaddr *>(&*where), sizeof *where) == 0) {
        pollfd wait{.fd = socket, .events = POLLIN, .revents = 0};
        const auto left = std::chrono::duration_cast<milliseconds>(deadline - Clock::now()).count();
        char byte = 0;
        answered = left > 0 && ::poll(&wait, 1, static_cast<int>(left)) == 1 && ::read(socket, &byte, 1) == 1;
    }
    if (socket >= 0)
        ::close(socket);
    return answered;
}

void RunningInstance::answer(std::function<void()> open)
{
    if (m_socket < 0)
        return;
    m_open = std::move(open);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { acceptAll(); });
}

void RunningInstance::acceptAll()
{
    int peer = -1;
    while ((peer = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC)) >= 0) {
        m_open();
        constexpr char done = 1;
        ::send(peer, &done, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
        ::close(peer);
    }
}

std::optional<QString> instanceFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QStringList folders{QStringLiteral("%1/brimlight-%2").arg(QDir::tempPath()).arg(::geteuid())};
    if (QDir::isAbsolutePath(runtime))
        folders.prepend(runtime + QStringLiteral("/brimlight"));
    for (const QString &folder : folders) {
        if (address(socketPath(folder, instanceName())) && isPrivate(QFile::encodeName(folder)))
            return folder;
    }
    return std::nullopt;
}

QString instanceName()
{
    // The program is drawn on X11 in a Wayland session too.
    const QByteArray display =
        qEnvironmentVariableIsEmpty("DISPLAY") ? qgetenv("WAYLAND_DISPLAY") : qgetenv("DISPLAY");
    const QByteArray hash =
        QCryptographicHash::hash(qgetenv("QT_QPA_PLATFORM") + ' ' + display, QCryptographicHash::Sha1);
    return QString::fromLatin1(hash.first(8).toHex());
}

} // namespace brimlight
