#pragma once

#include "theme/GaugeItem.h"
#include "theme/GaugeProgress.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>

#include <optional>
#include <vector>

namespace brimlight {

/// One character of a line and where it stands, in points from the start of the line.
struct RollingCell
{
    QString glyph;
    double x = 0;
    double width = 0;
    /// Of the glyph itself, which stands in the middle.
    double advance = 0;
};

/// The characters of a text side by side; all digits are as wide as the widest of them.
std::vector<RollingCell> rollingCells(const QString &text, const QFontMetricsF &metrics);

double rollingWidth(const std::vector<RollingCell> &cells);

/// By how much a line shrinks to fit: 1 where there is room, never below 0.7.
double rollingScale(double natural, double available);

/// A place of a line before and after a change; absent where one of the lines is shorter.
struct RollingColumn
{
    std::optional<RollingCell> from;
    std::optional<RollingCell> to;

    /// Only a place whose character changes rolls.
    bool rolls() const { return !from || !to || from->glyph != to->glyph; }
};

/// The places of two lines, matched from the right, where the smallest unit of a number stands.
std::vector<RollingColumn> rollingColumns(const std::vector<RollingCell> &from,
                                          const std::vector<RollingCell> &to);

/// A text whose characters roll upwards when they change: a time, a percentage.
///
/// One line, its digits all of one width so that nothing jitters, shrinking to 0.7 of its size where space is
/// short.
class RollingNumber : public brimlight::GaugeItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// Where valid, the text is filled from `color` at the top left to this at the bottom right.
    Q_PROPERTY(QColor gradientEnd READ gradientEnd WRITE setGradientEnd RESET resetGradientEnd NOTIFY
                   gradientEndChanged)
    /// Text.AlignLeft, Text.AlignHCenter or Text.AlignRight.
    Q_PROPERTY(int horizontalAlignment READ horizontalAlignment WRITE setHorizontalAlignment NOTIFY
                   horizontalAlignmentChanged)
    /// The motion of a change: milliseconds, and the curve over them.
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY motionChanged)
    Q_PROPERTY(QEasingCurve easing READ easing WRITE setEasing NOTIFY motionChanged)
    /// Whether characters roll at this moment.
    Q_PROPERTY(bool rolling READ rolling NOTIFY rollingChanged)

public:
    explicit RollingNumber(QQuickItem *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    QFont font() const { return m_font; }
    void setFont(const QFont &font);
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    QColor gradientEnd() const { return m_gradientEnd; }
    void setGradientEnd(const QColor &color);
    void resetGradientEnd() { setGradientEnd({}); }
    int horizontalAlignment() const { return m_alignment; }
    void setHorizontalAlignment(int alignment);
    int duration() const { return static_cast<int>(m_motion.duration.count()); }
    void setDuration(int milliseconds);
    QEasingCurve easing() const { return m_motion.easing; }
    void setEasing(const QEasingCurve &easing);
    bool rolling() const { return m_roll.isRunning(); }

    double overhang() const override;
    void draw(QPainter &painter, double devicePixelRatio) override;

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();
    void gradientEndChanged();
    void horizontalAlignmentChanged();
    void motionChanged();
    void rollingChanged();

protected:
    void appeared() override {}
    void settle() override;
    void geometryChange(const QRectF &to, const QRectF &from) override;

private:
    void layOut();
    double scaleFor(const std::vector<RollingCell> &cells) const;
    /// Where a line starts, in points of the unscaled text.
    double originOf(const std::vector<RollingCell> &cells, double scale) const;

    QString m_text;
    QFont m_font;
    QColor m_color = Qt::white;
    QColor m_gradientEnd;
    int m_alignment = Qt::AlignLeft;
    GaugeMotion m_motion = GaugeMotion::roll();
    GaugeProgress m_roll;
    double m_drawn = 0;
    std::vector<RollingCell> m_before;
    std::vector<RollingCell> m_cells;
};

} // namespace brimlight
