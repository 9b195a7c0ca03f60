#include "OnScreenTest.h"

#include <algorithm>
#include <utility>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

void OnScreenTest::TearDown()
{
    if (!panel)
        return;
    keepPicture();
    EXPECT_TRUE(panel->isRunning()) << "the program has ended, status " << panel->process().exitCode();
    panel->end();
    EXPECT_EQ(panel->unexpectedLines().join(u'\n').toStdString(), "");
    if (HasFailure())
        std::fprintf(stderr, "The program said:\n%s\n", qPrintable(panel->lines().join(u'\n')));
}

void OnScreenTest::keepPicture()
{
    const QString folder = qEnvironmentVariable("BRIMLIGHT_ONSCREEN_PICTURES");
    if (folder.isEmpty() || std::exchange(m_hasPicture, true))
        return;
    const auto *info = testing::UnitTest::GetInstance()->current_test_info();
    QString name = QString::fromLatin1(info->test_suite_name()) + u'.' + QString::fromLatin1(info->name());
    x.screenshot().save(folder + u'/' + name.replace(u'/', u'_') + u".png"_s);
}

void OnScreenTest::startPanel()
{
    startPanel(QStringLiteral(BRIMLIGHT_PROGRAM));
    ASSERT_TRUE(panel && panel->waitForLine(u"^Notch panel ordered front "_s));
}

void OnScreenTest::startPanel(const QString &program)
{
    hand.moveTo(away());
    // A compositor draws the wallpaper a little later.
    ASSERT_TRUE(waitUntil([this] {
        bare = x.screenshot();
        return bare.pixel(0, 0) != bare.pixel(60, 60);
    }));
    session.setVariable("BRIMLIGHT_DEBUG_SIGNALS", "1");
    panel = std::make_unique<Panel>(program, session.environment());
    const auto line = panel->waitForLine(QString::fromLatin1(placed));
    ASSERT_TRUE(line);
    strip = frameIn(*line);
    ASSERT_TRUE(waitUntil([this] { return programWindowAt(onStrip()).has_value(); }));
}

QRect OnScreenTest::frameIn(const QRegularExpressionMatch &line) const
{
    return frameIn(line, QRect(QPoint(), x.size()));
}

QRect OnScreenTest::frameIn(const QRegularExpressionMatch &line, const QRect &monitor)
{
    // Its origin is at the bottom left, y upwards.
    static const QRegularExpression numbers(u"\\((-?\\d+),(-?\\d+) (\\d+)x(\\d+)\\)"_s);
    const auto match = numbers.match(line.captured(1));
    const int height = match.captured(4).toInt();
    return {monitor.left() + match.captured(1).toInt(),
            monitor.bottom() + 1 - match.captured(2).toInt() - height, match.captured(3).toInt(), height};
}

std::optional<QRect> OnScreenTest::waitForOpen()
{
    const auto line = panel->waitForLine(QString::fromLatin1(opened));
    return line ? std::optional(frameIn(*line)) : std::nullopt;
}

std::optional<QRect> OnScreenTest::openByTap()
{
    const QImage before = x.screenshot();
    hand.clickAt(onEdge());
    const auto frame = waitForOpen();
    if (!frame || !waitUntil([&] { return isSeen(*frame, before); }))
        return std::nullopt;
    return frame;
}

void OnScreenTest::expectClicksReach(Victim &victim, const std::vector<QPoint> &points) const
{
    std::vector<QPoint> clicked;
    for (const QPoint point : points) {
        hand.clickAt(point);
        clicked.push_back(point);
        EXPECT_TRUE(waitUntil([&] { return victim.presses().size() >= clicked.size(); }));
        EXPECT_EQ(victim.presses(), clicked);
    }
}

double OnScreenTest::changed(const QImage &before, const QRect &area) const
{
    const QImage now = x.screenshot();
    const QRect compared = area & now.rect() & before.rect();
    int different = 0;
    for (int row = compared.top(); row <= compared.bottom(); ++row) {
        const auto *const one = reinterpret_cast<const QRgb *>(now.constScanLine(row));
        const auto *const other = reinterpret_cast<const QRgb *>(before.constScanLine(row));
        for (int column = compared.left(); column <= compared.right(); ++column)
            different += ((one[column] ^ other[column]) & RGB_MASK) != 0;
    }
    return static_cast<double>(different) / std::max(1, compared.width() * compared.height());
}

bool OnScreenTest::isStill(const QRect &area) const
{
    // Some frames, and longer than any pause within a movement.
    constexpr milliseconds frames{150};
    const QImage before = x.screenshot();
    return holds([&] { return changed(before, area) < 0.01; }, frames);
}

bool OnScreenTest::rests(const QRect &area) const
{
    return waitUntil([&] { return isStill(area); });
}

bool OnScreenTest::isSeen(const QRect &frame, const QImage &before) const
{
    constexpr int rim = 9;
    const QRect inner = frame.adjusted(rim, 0, -rim, -rim);
    const QImage now = x.screenshot().copy(inner);
    QImage blank = now;
    blank.fill(now.pixel(0, 0));
    return now != blank && changed(before, inner) > 0.99;
}

QRect OnScreenTest::sensor() const
{
    for (const WindowInfo &window : x.windows()) {
        if (window.isInputOnly && window.isViewable && window.frame.left() == strip.left() &&
            window.frame.width() == strip.width())
            return window.frame;
    }
    return {};
}

std::optional<WindowInfo> OnScreenTest::programWindowAt(QPoint point) const
{
    auto windows = x.windows();
    std::reverse(windows.begin(), windows.end());
    for (const WindowInfo &window : windows) {
        // The sensor has no class: nobody but this program puts windows without a picture here.
        const bool isOurs = window.isInputOnly || window.className.contains("rimlight");
        if (isOurs && window.isOverrideRedirect && window.isViewable && window.frame.contains(point))
            return window;
    }
    return std::nullopt;
}

} // namespace brimlight::onscreen
