#include "OnScreenTest.h"
#include "ScreenReader.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <sys/statvfs.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

QByteArray firstLine(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

/// The kernel's counters at one moment.
struct Counters
{
    Clock::time_point time;
    double idle = 0;
    double total = 0;
    /// From 0 to 100.
    double memory = 0;

    static Counters now()
    {
        Counters counters{.time = Clock::now()};
        std::ifstream stat("/proc/stat");
        std::string label;
        stat >> label;
        for (int column = 0; column < 8; ++column) {
            double ticks = 0;
            stat >> ticks;
            counters.total += ticks;
            const bool idles = column == 3 || column == 4;
            counters.idle += idles ? ticks : 0;
        }
        counters.memory = 100 * (1 - memoryInfo("MemAvailable:") / memoryInfo("MemTotal:"));
        return counters;
    }
    /// In bytes.
    static double memoryInfo(const std::string &wanted)
    {
        std::ifstream meminfo("/proc/meminfo");
        std::string name;
        double kibibytes = 0;
        while (name != wanted && meminfo >> name >> kibibytes)
            meminfo.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        return kibibytes * 1024;
    }
    /// Of the processors since then, from 0 to 100.
    double loadSince(const Counters &then) const
    {
        return total == then.total ? 0 : 100 * (1 - (idle - then.idle) / (total - then.total));
    }
};

/// Keeps processors busy while it lives.
class Load
{
public:
    explicit Load(unsigned threads)
    {
        for (unsigned i = 0; i < threads; ++i)
            m_threads.emplace_back([](const std::stop_token &stop) {
                while (!stop.stop_requested()) {
                }
            });
    }

private:
    std::vector<std::jthread> m_threads;
};

/// Two values shown together, and what the kernel counted meanwhile.
struct Tick
{
    int cpu = 0;
    int ram = 0;
    /// How far the values are from the nearest window of the same length that ends when they appeared.
    double cpuOff = 0;
    double ramOff = 0;
};

std::ostream &operator<<(std::ostream &stream, const Tick &tick)
{
    return stream << "CPU " << tick.cpu << " off " << tick.cpuOff << ", RAM " << tick.ram << " off "
                  << tick.ramOff << '\n';
}

/// The program with one page of widgets that show the machine, and a screen reader beside it.
class Machine : public OnScreenTest
{
protected:
    ScreenReader reader{session};

    Machine()
        : OnScreenTest({.windowManager = "openbox"})
    {
        struct Widget
        {
            QString kind;
            QString size;
            int col;
            int row;
        };
        const Widget widgets[] = {{u"system"_s, u"wide"_s, 0, 0},      {u"usagegraph"_s, u"large"_s, 0, 1},
                                  {u"disk"_s, u"wide"_s, 2, 0},        {u"disk"_s, u"large"_s, 2, 1},
                                  {u"temperature"_s, u"wide"_s, 4, 0}, {u"network"_s, u"large"_s, 4, 1},
                                  {u"battery"_s, u"wide"_s, 0, 3}};
        QJsonArray instances;
        for (const Widget &widget : widgets)
            instances.append(
                QJsonObject{{u"id"_s, QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper()},
                            {u"kind"_s, widget.kind},
                            {u"size"_s, widget.size},
                            {u"order"_s, instances.size()},
                            {u"page"_s, 0},
                            {u"col"_s, widget.col},
                            {u"row"_s, widget.row}});
        const QJsonObject layout{{u"instances"_s, instances}, {u"pageCount"_s, 1}};
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        session.writeConfigFile(u"../data/Brimlight/grid.json"_s, QJsonDocument(layout).toJson());
    }

    void open(const QString &program = QStringLiteral(BRIMLIGHT_PROGRAM))
    {
        startPanel(program);
        ASSERT_TRUE(openByTap());
        hand.moveTo(away());
        ASSERT_TRUE(
            waitUntil([this] { return shown(u"progress bar"_s, u"^RAM [1-9]\\d*%$"_s).size() == 1; }));
    }

    /// All objects of this role whose names match, in the order of the tree.
    std::vector<AccessibleObject> shown(const QString &role, const QString &pattern) const
    {
        const QRegularExpression wanted(pattern);
        std::vector<AccessibleObject> found = reader.objects();
        std::erase_if(found, [&](const AccessibleObject &object) {
            return object.role != role || !wanted.match(object.name).hasMatch();
        });
        return found;
    }
    /// The number in what an object is called.
    int number(const AccessibleObject &object) const
    {
        static const QRegularExpression digits(u"\\d+"_s);
        return digits.match(reader.name(object)).captured().toInt();
    }

    /// The next ticks of two meters, which measure for a `period` each.
    std::vector<Tick> follow(const AccessibleObject &cpu, const AccessibleObject &ram, milliseconds period,
                             size_t count) const
    {
        // What the program needs until a value can be asked for, and its timer's tolerance.
        constexpr milliseconds slack{100};
        std::vector<Counters> log{Counters::now()};
        std::vector<Tick> ticks;
        const auto start = log.front().time;
        auto lastTick = start;
        std::pair before{number(cpu), number(ram)};
        const auto enough = [&] {
            const auto asked = Clock::now();
            const std::pair now{number(cpu), number(ram)};
            log.push_back(Counters::now());
            const auto seen = log.back().time;
            const bool hasChanged = now != before;
            // It may as well have measured the same again.
            if (!hasChanged && seen < lastTick + period + slack)
                return false;
            before = now;
            const auto from = hasChanged ? asked - slack : lastTick;
            lastTick = seen;
            // The first windows begin before the log does.
            if (seen - start > 2 * period + slack)
                ticks.push_back(compare(now.first, now.second, log, from, period, slack));
            return ticks.size() == count;
        };
        // Asking must not be a load itself.
        EXPECT_TRUE(waitUntil(enough, 2 * period * count + patience, milliseconds(20)));
        return ticks;
    }
    static Tick compare(int cpu, int ram, const std::vector<Counters> &log, Clock::time_point from,
                        milliseconds period, milliseconds slack)
    {
        Tick tick{.cpu = cpu, .ram = ram, .cpuOff = 100, .ramOff = 100};
        for (const Counters &end : log) {
            if (end.time < from)
                continue;
            tick.ramOff = std::min(tick.ramOff, std::abs(end.memory - ram));
            for (const Counters &begin : log) {
                if (std::chrono::abs(end.time - begin.time - period) < slack)
                    tick.cpuOff = std::min(tick.cpuOff, std::abs(end.loadSince(begin) - cpu));
            }
        }
        return tick;
    }
    /// At least three of five do.
    static void expectAgreement(const std::vector<Tick> &ticks)
    {
        const std::string all = testing::PrintToString(ticks);
        std::printf("%s\n", all.c_str());
        EXPECT_GE(std::ranges::count_if(ticks, [](const Tick &tick) { return tick.cpuOff <= 2; }), 3) << all;
        EXPECT_GE(std::ranges::count_if(ticks, [](const Tick &tick) { return tick.ramOff <= 2; }), 3) << all;
    }
};

TEST_F(Machine, MetersFollowTheLoad)
{
    open();
    const auto cpu = shown(u"progress bar"_s, u"^CPU \\d+%$"_s).at(0);
    const auto ram = shown(u"progress bar"_s, u"^RAM \\d+%$"_s).at(0);
    constexpr milliseconds period{1000};
    const auto atRest = follow(cpu, ram, period, 5);
    expectAgreement(atRest);
    const Load all(std::thread::hardware_concurrency());
    const double total = Counters::memoryInfo("MemTotal:");
    const double size = std::min(total / 8, Counters::memoryInfo("MemAvailable:") / 2);
    const std::vector<char> block(static_cast<size_t>(size), 1);
    const auto underLoad = follow(cpu, ram, period, 5);
    expectAgreement(underLoad);

    const auto byCpu = [](const Tick &a, const Tick &b) { return a.cpu < b.cpu; };
    const int quiet = std::ranges::min_element(atRest, byCpu)->cpu;
    const int busy = std::ranges::max_element(underLoad, byCpu)->cpu;
    EXPECT_GE(busy, 90);
    // On a machine that others keep busy there is nowhere to go.
    EXPECT_GT(busy, std::min(quiet, 89));
    // Others may give some back meanwhile.
    EXPECT_GE(underLoad.back().ram, atRest.back().ram + 50 * size / total);
    EXPECT_EQ(block.back(), 1);
}

TEST_F(Machine, GraphFollowsTheLoad)
{
    open();
    const Load one(1);
    const auto cpu = shown(u"label"_s, u"^CPU \\d+%$"_s).at(0);
    const auto ram = shown(u"label"_s, u"^RAM \\d+%$"_s).at(0);
    expectAgreement(follow(cpu, ram, milliseconds(2000), 5));
}

/// As the program writes it.
QString gigabytes(double bytes)
{
    const double value = bytes / 1e9;
    return QString::asprintf(value >= 100 ? "%.0f GB free" : "%.1f GB free", value);
}

TEST_F(Machine, DiskIsWhatTheFileSystemSays)
{
    open();
    const auto agrees = [this] {
        struct statvfs root = {};
        if (::statvfs("/", &root) != 0)
            return false;
        const auto share = static_cast<double>(root.f_bavail) / static_cast<double>(root.f_blocks);
        const auto percent = u"%1%"_s.arg(std::lround(100 * (1 - share)));
        const QString free =
            gigabytes(static_cast<double>(root.f_bavail) * static_cast<double>(root.f_frsize));
        // Large and wide.
        return shown(u"progress bar"_s, u'^' + percent + u'$').size() == 2 &&
               shown(u"label"_s, u'^' + QRegularExpression::escape(free) + u'$').size() == 2;
    };
    // Others write meanwhile; the program asks now and then.
    EXPECT_TRUE(waitUntil(agrees, milliseconds(40000)));
}

TEST_F(Machine, BatteryAndTemperatureAreNamed)
{
    open();
    QString charge = u"—"_s;
    const QDir supplies(u"/sys/class/power_supply"_s);
    for (const QString &name : supplies.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = supplies.filePath(name);
        if (firstLine(folder + u"/type"_s) == "Battery" && firstLine(folder + u"/scope"_s) != "Device")
            charge = QString::fromLatin1(firstLine(folder + u"/capacity"_s));
    }
    // A tile comes with the panel, its figures when their source has answered.
    EXPECT_TRUE(waitUntil([&] { return shown(u"progress bar"_s, u'^' + charge + u'$').size() == 1; }));
    EXPECT_TRUE(waitUntil([&] {
        const size_t degrees = shown(u"progress bar"_s, u"^-?\\d+°$"_s).size();
        const size_t state = shown(u"label"_s, u"^(?:Nominal|Fair|Serious|Critical)$"_s).size();
        return degrees + state == 1;
    }));
}

/// How this machine gives a process a network of its own.
struct Rights
{
    /// Words of unshare and of nsenter.
    QStringList leave;
    QStringList enter;

    bool areGiven() const { return QProcess::execute(u"unshare"_s, leave + QStringList(u"true"_s)) == 0; }
    /// Anybody has them in a user namespace; root needs none, and gets none in a changed root. Absent where
    /// the kernel or a container forbids both.
    static std::optional<Rights> find()
    {
        const Rights ways[] = {
            {{u"--map-current-user"_s, u"--keep-caps"_s, u"--net"_s},
             {u"--user"_s, u"--preserve-credentials"_s, u"--net"_s}},
            {{u"--net"_s}, {u"--net"_s}},
        };
        const auto *const given = std::ranges::find_if(ways, &Rights::areGiven);
        return given == std::end(ways) ? std::nullopt : std::optional(*given);
    }
};

/// Two network namespaces with a link between them; the program lives at its near end.
class Link
{
public:
    Link(const Rights &rights, const QProcessEnvironment &environment)
        : m_rights(rights)
        , m_environment(environment)
        , m_holder(u"unshare"_s, rights.leave + QStringList{u"sh"_s, u"-ec"_s, QString::fromLatin1(script)},
                   environment)
    {
        QByteArray answer;
        waitUntil([&] {
            m_holder.waitForReadyRead(50);
            answer += m_holder.readAllStandardOutput();
            return answer.endsWith('\n') || m_holder.state() == QProcess::NotRunning;
        });
        m_near = QString::number(m_holder.processId());
        m_far = QString::fromLatin1(answer.trimmed());
        if (m_far.isEmpty())
            throw std::runtime_error("no network namespaces: " +
                                     m_holder.readAllStandardError().toStdString());
    }

    QStringList enterNear() const { return enter(m_near); }
    std::unique_ptr<ChildProcess> sendToNear(int bytesPerSecond) const { return send(m_far, bytesPerSecond); }
    std::unique_ptr<ChildProcess> sendFromNear(int bytesPerSecond) const
    {
        return send(m_near, bytesPerSecond);
    }

private:
    // The far end lasts until the test closes the pipe.
    static constexpr const char *script = R"sh(
        exec 3<&0
        ip link add name near type veth peer name far
        unshare --net cat <&3 >/dev/null &
        while [ "$(readlink /proc/$!/ns/net)" = "$(readlink /proc/self/ns/net)" ]; do sleep 0.05; done
        ip link set far netns $!
        ip link set near addrgenmode none
        ip address add 192.0.2.1/24 broadcast 192.0.2.255 dev near
        ip link set near up
        far="nsenter --net=/proc/$!/ns/net"
        $far ip link set far addrgenmode none
        $far ip address add 192.0.2.2/24 broadcast 192.0.2.255 dev far
        $far ip link set far up
        echo $!
        wait
    )sh";

    QStringList enter(const QString &process) const
    {
        return QStringList{u"--target"_s, process} + m_rights.enter;
    }
    std::unique_ptr<ChildProcess> send(const QString &from, int bytesPerSecond) const
    {
        const QStringList sender{QStringLiteral(LINK_SENDER), u"192.0.2.255"_s,
                                 QString::number(bytesPerSecond), u"8"_s};
        return std::make_unique<ChildProcess>(u"nsenter"_s, enter(from) + sender, m_environment);
    }

    Rights m_rights;
    QProcessEnvironment m_environment;
    ChildProcess m_holder;
    QString m_near;
    QString m_far;
};

double bytesPerSecond(const QString &rate)
{
    const QStringList words = rate.split(u' ');
    const QString unit = words.value(1);
    return words.first().toDouble() * (unit == u"MB/s" ? 1e6 : unit == u"KB/s" ? 1e3 : 1);
}

TEST_F(Machine, RatesAreThoseOfTheLink)
{
    const std::optional<Rights> rights = Rights::find();
    // No package gives what the kernel refuses, and another's link would be no known transfer.
    if (!rights)
        GTEST_SKIP() << "neither a user namespace nor root may have a network of its own here";
    const Link link(*rights, session.environment());
    const QString wrapper = session.configFile(u"near"_s);
    session.writeConfigFile(u"near"_s, "#!/bin/sh\nexec nsenter " + link.enterNear().join(u' ').toUtf8() +
                                           " " BRIMLIGHT_PROGRAM "\n");
    QFile::setPermissions(wrapper, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    open(wrapper);
    const auto rates = shown(u"label"_s, u"^[\\d.]+ [KM]?B/s$"_s);
    ASSERT_EQ(rates.size(), 2);
    const auto rest = [&] { return reader.name(rates[0]) == u"0 B/s" && reader.name(rates[1]) == u"0 B/s"; };
    ASSERT_TRUE(waitUntil(rest));

    constexpr int down = 2'000'000;
    constexpr int up = 300'000;
    const auto toNear = link.sendToNear(down);
    const auto fromNear = link.sendFromNear(up);
    // Three seconds of the eight: the first began without the transfer, and a busy machine stumbles.
    int agreeing = 0;
    QStringList said;
    const auto agreesForLong = [&] {
        const QString downText = reader.name(rates[0]);
        const QString upText = reader.name(rates[1]);
        agreeing += std::abs(bytesPerSecond(downText) / down - 1) <= 0.05 &&
                    std::abs(bytesPerSecond(upText) / up - 1) <= 0.05;
        const QString text = downText + u", "_s + upText;
        if (said.isEmpty() || said.last() != text)
            said.append(text);
        return agreeing == 30;
    };
    EXPECT_TRUE(waitUntil(agreesForLong, patience, milliseconds(100))) << qPrintable(said.join(u'\n'));
    for (const auto &sender : {toNear.get(), fromNear.get()}) {
        EXPECT_TRUE(sender->waitForFinished(static_cast<int>(patience.count())));
        EXPECT_EQ(sender->exitCode(), 0) << sender->readAllStandardError().toStdString();
    }
    EXPECT_TRUE(waitUntil(rest));
}

} // namespace
} // namespace brimlight::onscreen
