#include "notch/NotchPanel.h"

#include "notch/Placement.h"
#include "theme/Motion.h"
#include "theme/NotchShape.h"

#include <algorithm>

namespace brimlight {
namespace {

constexpr Spring frameSpring = Motion::panelSpring;
// The corner of an outline that comes closest to a quarter of a circle of 10 points, which menus and the
// heads-up display have.
constexpr double circleRadius = 11.7;

double mix(double from, double to, double progress)
{
    return from + (to - from) * progress;
}

Rect mix(const Rect &from, const Rect &to, double progress)
{
    const Rect mixed{mix(from.x, to.x, progress), mix(from.y, to.y, progress),
                     std::max(0.0, mix(from.width, to.width, progress)),
                     std::max(0.0, mix(from.height, to.height, progress))};
    // The top edge stays on the screen's edge to the last bit: rounding must not open a seam.
    return from.maxY() == to.maxY() ? Rect{mixed.x, to.maxY() - mixed.height, mixed.width, mixed.height}
                                    : mixed;
}

/// The largest area that the panel can need while it is open, standing where `frame` stands.
Rect openExtent(const Rect &frame)
{
    const double width = std::max(frame.width, placement::minimumExpandedWidth) + 2 * NotchPanel::overhang;
    const double height = std::max(frame.height, placement::maximumGridHeight) + NotchPanel::overhang;
    return {frame.midX() - width / 2, frame.maxY() - height, width, height};
}

} // namespace

NotchPanel::NotchPanel(OverlaySurface &surface, QObject *parent)
    : QObject(parent)
    , m_surface(surface)
{
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setDuration(static_cast<int>(frameSpring.settlingTime().count()));
    connect(&m_animation, &QVariantAnimation::valueChanged, this, [this] {
        const std::chrono::milliseconds elapsed(m_animation.currentTime());
        step(mix(m_from, m_frame, frameSpring.value(elapsed)));
    });
    connect(&m_animation, &QVariantAnimation::finished, this, [this] { settle(); });
}

void NotchPanel::orderFront()
{
    m_surface.orderFront();
}

void NotchPanel::setFrame(const Rect &frame, bool animate)
{
    const bool jump = !animate || frame.maxY() != m_frame.maxY() || frame.midX() != m_frame.midX();
    m_frame = frame;
    if (m_contentVisible)
        m_openHeight = frame.height;
    m_animation.stop();
    if (!m_contentVisible)
        m_surface.setSensor({.strip = m_frame, .isHousing = m_isOverHousing});
    if (jump) {
        const Rect before = m_extent;
        settle();
        // The primary screen may have moved: the same coordinates are another place then.
        if (m_extent == before)
            m_surface.setExtent(m_extent);
        return;
    }
    m_from = m_displayed;
    if (!m_isDrawn) {
        setExtent(openExtent(m_frame));
        setDrawn(true);
    }
    m_animation.start();
}

void NotchPanel::setBlursBehind(bool blurs)
{
    m_blursBehind = blurs;
    updateOutlines();
}

QRectF NotchPanel::pane() const
{
    return local(m_displayed);
}

void NotchPanel::finishAnimation()
{
    advanceAnimation(std::chrono::milliseconds(m_animation.duration()));
}

void NotchPanel::advanceAnimation(std::chrono::milliseconds elapsed)
{
    if (isAnimating())
        m_animation.setCurrentTime(static_cast<int>(elapsed.count()));
}

void NotchPanel::setPopoverFrame(QObject &owner, const Rect &frame)
{
    if (!m_popovers.contains(&owner))
        connect(&owner, &QObject::destroyed, this, [this, key = &owner] { removePopover(*key); });
    m_popovers.insert(&owner, frame);
    updateOutlines();
}

void NotchPanel::removePopover(QObject &owner)
{
    disconnect(&owner, &QObject::destroyed, this, nullptr);
    if (m_popovers.remove(&owner) > 0)
        updateOutlines();
}

void NotchPanel::removePopovers()
{
    const QList<QObject *> owners = m_popovers.keys();
    for (QObject *owner : owners)
        removePopover(*owner);
}

bool NotchPanel::contains(Point point, double margin) const
{
    return m_frame.outset(margin).contains(point) ||
           std::any_of(m_popovers.begin(), m_popovers.end(),
                       [&](const Rect &popover) { return popover.outset(margin).contains(point); });
}

void NotchPanel::showPopover(QObject *owner, const QRectF &local)
{
    if (!owner)
        return;
    if (local.isEmpty())
        removePopover(*owner);
    else
        setPopoverFrame(*owner, logical(local));
}

void NotchPanel::setHudShown(bool shown)
{
    m_hudShown = shown;
    makeRoomForHud();
}

QRectF NotchPanel::hudPlace() const
{
    return local(placement::hudFrame(m_frame));
}

void NotchPanel::showHud(const QRectF &local)
{
    m_hud = local;
    updateOutlines();
    makeRoomForHud();
}

void NotchPanel::makeRoomForHud()
{
    // A panel that is open or about to be has room enough.
    if (!m_isDrawn && !m_contentVisible)
        setExtent(restExtent());
}

Rect NotchPanel::logical(const QRectF &local) const
{
    return {m_extent.x + local.x(), m_extent.maxY() - local.y() - local.height(), local.width(),
            local.height()};
}

QRectF NotchPanel::local(const Rect &logical) const
{
    return {logical.x - m_extent.x, m_extent.maxY() - logical.maxY(), logical.width, logical.height};
}

Rect NotchPanel::restExtent() const
{
    if (!m_hudShown && m_hud.isEmpty())
        return m_frame;
    constexpr double extra = placement::hudExtraHeight;
    return {m_frame.x, m_frame.y - extra, m_frame.width, m_frame.height + extra};
}

void NotchPanel::step(const Rect &displayed)
{
    m_displayed = displayed;
    updateOutlines();
    Q_EMIT paneChanged();
}

void NotchPanel::settle()
{
    if (m_contentVisible) {
        setExtent(openExtent(m_frame));
        setDrawn(true);
        step(m_frame);
    } else {
        setDrawn(false);
        step(m_frame);
        setExtent(restExtent());
    }
}

void NotchPanel::setExtent(const Rect &extent)
{
    if (extent == m_extent)
        return;
    // Popovers stand where they stood in the surface.
    for (Rect &popover : m_popovers)
        popover = {popover.x + extent.x - m_extent.x, popover.y + extent.maxY() - m_extent.maxY(),
                   popover.width, popover.height};
    m_extent = extent;
    m_surface.setExtent(extent);
    updateOutlines();
    Q_EMIT paneChanged();
}

void NotchPanel::setDrawn(bool drawn)
{
    if (drawn == m_isDrawn)
        return;
    m_isDrawn = drawn;
    updateOutlines();
    Q_EMIT isDrawnChanged();
}

void NotchPanel::updateOutlines()
{
    std::vector<SurfaceOutline> outlines;
    if (m_isDrawn) {
        const double radius = NotchShape{.bottomRadius = NotchShape::maskRadius}.effectiveRadius(
            {0, 0, m_displayed.width, m_displayed.height});
        outlines.push_back({.frame = m_displayed, .bottomRadius = radius, .blursBehind = m_blursBehind});
        for (const Rect &popover : m_popovers)
            outlines.push_back({.frame = popover, .bottomRadius = circleRadius, .topRadius = circleRadius});
    }
    if (!m_hud.isEmpty())
        outlines.push_back({.frame = logical(m_hud),
                            .bottomRadius = circleRadius,
                            .topRadius = circleRadius,
                            .takesPointer = false});
    m_surface.setOutlines(outlines);
}

} // namespace brimlight
