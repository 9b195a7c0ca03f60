#pragma once

#include "theme/GaugeItem.h"
#include "theme/GaugeProgress.h"

#include <QColor>
#include <QImage>

namespace brimlight {

/// The part of a ring that is drawn for a fraction: at most the whole, and never nothing, so that a round dot
/// remains.
double ringProgress(double value);

/// How opaque the arc is at a fraction of the whole turn, 0 at the top and clockwise: faint where it starts,
/// full half way round.
double ringOpacity(double turn);

/// A fraction as an arc that starts at the top and runs clockwise, with a soft glow.
///
/// The circle touches the edges of the item with the middle of its line: half of the line and the glow stand
/// out. When it first appears the arc sweeps in; later changes follow by a spring.
class RingGauge : public brimlight::GaugeItem
{
    Q_OBJECT
    QML_ELEMENT
    /// 0 to 1; anything else is limited to that.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)
    /// In points.
    Q_PROPERTY(double lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged)
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged)
    /// The full ring below the arc.
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY trackChanged)
    /// The motion of a change: milliseconds, and the curve over them.
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY motionChanged)
    Q_PROPERTY(QEasingCurve easing READ easing WRITE setEasing NOTIFY motionChanged)
    /// The part of the ring that is drawn now, 0.001 to 1; overshoots for the moment of a spring.
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    explicit RingGauge(QQuickItem *parent = nullptr);

    double value() const { return m_value; }
    void setValue(double value);
    double lineWidth() const { return m_lineWidth; }
    void setLineWidth(double width);
    QColor tint() const { return m_tint; }
    void setTint(const QColor &tint);
    QColor track() const { return m_track; }
    void setTrack(const QColor &track);
    int duration() const { return static_cast<int>(m_motion.duration.count()); }
    void setDuration(int milliseconds);
    QEasingCurve easing() const { return m_motion.easing; }
    void setEasing(const QEasingCurve &easing);
    double progress() const { return m_progress.value(); }

    double overhang() const override;
    void draw(QPainter &painter, double devicePixelRatio) override;

Q_SIGNALS:
    void valueChanged();
    void lineWidthChanged();
    void tintChanged();
    void trackChanged();
    void motionChanged();
    void progressChanged();

protected:
    void appeared() override;
    void settle() override;

private:
    /// Draws the arc anew once it has moved by more than what can be seen.
    void follow();
    /// Along the ring from where it stands to that progress.
    double pointsTo(double progress) const;
    QRectF circle() const;
    /// The angle in degrees by which a round cap stands out of the arc's end.
    double capDegrees() const;
    QBrush arcBrush() const;
    /// The item with its overhang.
    QSizeF canvasSize() const;
    QImage canvas(double devicePixelRatio) const;
    bool isCanvas(const QImage &image, double devicePixelRatio) const;
    void drawTrack(QPainter &painter, double devicePixelRatio);
    void drawArc(QPainter &painter, double turn, double devicePixelRatio);
    void drawGlow(QPainter &painter, double turn, double devicePixelRatio);
    QImage glowOfRing(double devicePixelRatio) const;
    QImage glowOfCap(double devicePixelRatio) const;

    double m_value = 0;
    double m_lineWidth = 6;
    QColor m_tint = Qt::white;
    QColor m_track = QColor(255, 255, 255, 46);
    GaugeMotion m_motion = GaugeMotion::ringChange();
    GaugeProgress m_progress;
    /// The progress that the picture shows.
    double m_drawn = 0;
    /// The full ring below the arc, the glow of the whole arc and of one round end; made when first needed
    /// for a size and a colour.
    QImage m_trackRing;
    QImage m_glowRing;
    QImage m_glowCap;
};

} // namespace brimlight
