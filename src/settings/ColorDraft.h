#pragma once

#include <QColor>
#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// A colour taken apart for its sliders. It keeps the hue of a grey and the saturation of black, which the
/// colour itself does not have, so that no slider moves by itself. All parts go from 0 to 1.
class ColorDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// As it is stored; a colour that is drawn the same changes nothing here.
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(double hue READ hue NOTIFY changed)
    Q_PROPERTY(double saturation READ saturation NOTIFY changed)
    Q_PROPERTY(double brightness READ brightness NOTIFY changed)
    Q_PROPERTY(double opacity READ opacity NOTIFY changed)
    Q_PROPERTY(QString hex READ hex NOTIFY changed)

public:
    using QObject::QObject;

    QColor color() const;
    void setColor(const QColor &color);
    double hue() const { return m_hue; }
    double saturation() const { return m_saturation; }
    double brightness() const { return m_brightness; }
    double opacity() const { return m_opacity; }
    /// "#0A84FF", without the opacity.
    QString hex() const;

    /// What the user does; each ends in `picked`.
    Q_INVOKABLE void pickHue(double hue) { pick(m_hue, hue); }
    Q_INVOKABLE void pickSaturation(double saturation) { pick(m_saturation, saturation); }
    Q_INVOKABLE void pickBrightness(double brightness) { pick(m_brightness, brightness); }
    Q_INVOKABLE void pickOpacity(double opacity) { pick(m_opacity, opacity); }
    /// Six hexadecimal digits, or eight with the opacity last; white space around and a leading "#" are
    /// allowed. Anything else changes nothing.
    Q_INVOKABLE void pickHex(const QString &text);

Q_SIGNALS:
    void changed();
    void picked(const QColor &color);

private:
    void pick(double &part, double value);
    void take(const QColor &color);

    double m_hue = 0;
    double m_saturation = 0;
    double m_brightness = 0;
    double m_opacity = 1;
};

} // namespace brimlight
