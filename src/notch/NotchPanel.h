#pragma once

#include "platform/OverlaySurface.h"

#include <QHash>
#include <QObject>
#include <QRectF>
#include <QVariantAnimation>
#include <QtQmlIntegration>

#include <chrono>

namespace brimlight {

/// The panel on screen. Its `frame` is logical: it jumps to each new value, while `pane`, what is drawn,
/// follows by animation inside a surface that is grown before an expansion and shrunk after a collapse, never
/// in between.
class NotchPanel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(QRectF pane READ pane NOTIFY paneChanged)
    Q_PROPERTY(bool isDrawn READ isDrawn NOTIFY isDrawnChanged)
    Q_PROPERTY(double openHeight READ openHeight NOTIFY paneChanged)
    Q_PROPERTY(QRectF hudPlace READ hudPlace NOTIFY paneChanged)
    Q_PROPERTY(int backdrop READ backdrop NOTIFY backdropChanged)

public:
    /// How far popovers and shadows can reach beyond the largest frame, in points.
    static constexpr double overhang = 120;

    explicit NotchPanel(OverlaySurface &surface, QObject *parent = nullptr);

    void orderFront();

    const Rect &frame() const { return m_frame; }
    /// Moves the panel at once; nothing is drawn while `content` is false and the panel is at rest.
    void setFrame(const Rect &frame, bool animate);
    /// Whether the collapsed panel lies on a camera housing; false at first. Goes before the frame that
    /// belongs to it.
    void setOverHousing(bool over) { m_isOverHousing = over; }
    /// Whether the panel shows anything. Goes before the frame that belongs to it.
    void setContentVisible(bool visible) { m_contentVisible = visible; }
    /// Whether the desktop behind the pane is to be blurred where that is on offer; true at first.
    void setBlursBehind(bool blurs);

    /// What is drawn now, in the surface's own coordinates: origin at its top left, y downwards.
    QRectF pane() const;
    /// A place on the screen, in the surface's own coordinates.
    QPointF inSurface(Point place) const { return local({place.x, place.y, 0, 0}).topLeft(); }
    /// The height that the content is laid out for: that of the open panel, also while it is growing or
    /// shrinking.
    double openHeight() const { return m_openHeight; }
    /// What lies behind what is drawn: a SurfaceBackdrop.
    int backdrop() const { return static_cast<int>(m_surface.backdrop()); }
    /// False while collapsed and at rest.
    bool isDrawn() const { return m_isDrawn; }
    /// Jumps to the end of a running animation.
    void finishAnimation();
    /// Jumps to `elapsed` in a running animation, which goes on from there.
    void advanceAnimation(std::chrono::milliseconds elapsed);
    bool isAnimating() const { return m_animation.state() == QAbstractAnimation::Running; }

    /// A popover or menu that belongs to the panel even where it stands outside of it. An owner that is
    /// destroyed takes its popover with it.
    void setPopoverFrame(QObject &owner, const Rect &frame);
    void removePopover(QObject &owner);
    void removePopovers();
    /// The same for views, in the surface's coordinates; an empty rectangle takes the popover away.
    Q_INVOKABLE void showPopover(QObject *owner, const QRectF &local);
    /// Room for the heads-up display under the collapsed strip: the surface is grown for it as long as it is
    /// shown or still seen.
    void setHudShown(bool shown);
    /// Where it comes to rest, in the surface's coordinates.
    QRectF hudPlace() const;
    /// What is seen of it now, in the surface's coordinates; empty when it has gone. It never takes the
    /// pointer.
    Q_INVOKABLE void showHud(const QRectF &local);
    /// True when the point lies within `margin` of the panel or of one of its popovers.
    bool contains(Point point, double margin) const;

Q_SIGNALS:
    void paneChanged();
    void isDrawnChanged();
    void backdropChanged();

private:
    Rect logical(const QRectF &local) const;
    QRectF local(const Rect &logical) const;
    void step(const Rect &displayed);
    void settle();
    void makeRoomForHud();
    /// What the surface covers while collapsed and at rest.
    Rect restExtent() const;
    void setExtent(const Rect &extent);
    void setDrawn(bool drawn);
    void updateOutlines();

    OverlaySurface &m_surface;
    Rect m_frame{0, 0, 200, 32};
    Rect m_displayed = m_frame;
    Rect m_extent = m_frame;
    Rect m_from = m_frame;
    double m_openHeight = 0;
    QVariantAnimation m_animation;
    bool m_contentVisible = false;
    bool m_isDrawn = false;
    bool m_isOverHousing = false;
    bool m_blursBehind = true;
    bool m_hudShown = false;
    QRectF m_hud;
    QHash<QObject *, Rect> m_popovers;
};

} // namespace brimlight
