#pragma once

#include "Desktop.h"
#include "Hand.h"
#include "Panel.h"
#include "Victim.h"
#include "XSession.h"

namespace brimlight::onscreen {

/// A desktop with the program on it. Fails when the program says anything that is no trace line, or ends by
/// itself.
class OnScreenTest : public testing::Test
{
protected:
    explicit OnScreenTest(const Desktop &desktop)
        : session(desktop)
    {
    }
    void TearDown() override;

    /// Starts the program and waits until it is shown.
    void startPanel();
    void startPanel(const QString &program);

    /// The frame that the program names in the first capture of a trace line, in pixels of the screen.
    QRect frameIn(const QRegularExpressionMatch &line) const;
    /// The same when the primary monitor does not fill the screen.
    static QRect frameIn(const QRegularExpressionMatch &line, const QRect &monitor);
    std::optional<QRect> waitForOpen();
    bool waitForClose() { return panel->waitForLine(QString::fromLatin1(closed)).has_value(); }
    bool staysShut() { return panel->keepsSilentAbout(QString::fromLatin1(opened)); }
    bool staysOpen() { return panel->keepsSilentAbout(QString::fromLatin1(closed)); }
    /// Opens and pins it; returns when it is seen.
    std::optional<QRect> openByTap();

    /// Clicks at each point and expects the window below to be told of each.
    void expectClicksReach(Victim &victim, const std::vector<QPoint> &points) const;

    /// The share of the pixels of `area` that are not as in `before`.
    double changed(const QImage &before, const QRect &area) const;
    /// Nothing moves there but the digits and hands of clocks.
    bool isStill(const QRect &area) const;
    /// Waits until nothing moves.
    bool rests(const QRect &area) const;
    /// All of `frame` but its rim is covered by the panel, and there is something on it.
    bool isSeen(const QRect &frame, const QImage &before) const;
    /// Keeps what is on the screen now for somebody who wants to see what the test judges; by itself at the
    /// end.
    void keepPicture();
    /// A window of the program that covers `point`, if any; the topmost.
    std::optional<WindowInfo> programWindowAt(QPoint point) const;

    /// A place that is far from the panel in every state.
    QPoint away() const { return {x.size().width() / 2, x.size().height() - 60}; }
    QPoint onStrip() const { return strip.center(); }
    /// Where a click is the strip's and not the window's below.
    QPoint onEdge() const { return {strip.center().x(), strip.top()}; }
    /// Where the window lies that feels the pointer while nothing is drawn; empty when it is not on the
    /// strip.
    QRect sensor() const;
    /// It gives way to what lies below, when it has not done so yet.
    bool givesWay() const
    {
        return waitUntil([this] { return sensor().height() < strip.height(); });
    }

    static constexpr const char *opened = "^Notch EXPANDED frame=(\\(.*\\))$";
    static constexpr const char *closed = "^Notch COLLAPSED frame=(\\(.*\\))$";
    static constexpr const char *placed = "^Repositioned on .* frame=(\\(.*\\))$";

    XSession session;
    XClient &x = session.x();
    Hand hand{x};
    /// The screen without the program.
    QImage bare;
    std::unique_ptr<Panel> panel;
    /// The collapsed panel.
    QRect strip;

private:
    bool m_hasPicture = false;
};

/// The same on each of several desktops.
class OnEachDesktop : public OnScreenTest, public testing::WithParamInterface<Desktop>
{
protected:
    OnEachDesktop()
        : OnScreenTest(GetParam())
    {
    }
    void SetUp() override { startPanel(); }
};

} // namespace brimlight::onscreen
