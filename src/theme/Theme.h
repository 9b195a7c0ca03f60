#pragma once

#include "theme/SignalColors.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QtQmlIntegration>

namespace brimlight {

/// A colour in sRGB. Channels and opacity go from 0 to 1, but a stored theme may hold any finite number.
struct ThemeColor
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;

    constexpr ThemeColor() = default;
    constexpr ThemeColor(double redChannel, double greenChannel, double blueChannel, double alpha)
        : red(redChannel)
        , green(greenChannel)
        , blue(blueChannel)
        , opacity(alpha)
    {
    }
    /// A colour that the user chose, converted to sRGB; opaque white when there is none.
    explicit ThemeColor(const QColor &color);

    bool operator==(const ThemeColor &) const = default;

    /// The colour to draw with. What lies outside of 0 to 1 is drawn as the nearest end.
    QColor toColor() const;

    /// From six hexadecimal digits, white space around and one leading "#" allowed.
    static ThemeColor fromHex(const QString &hex, double opacity);
};

size_t qHash(const ThemeColor &color, size_t seed = 0);

/// Every colour the program draws with.
struct Theme
{
    Q_GADGET
    QML_VALUE_TYPE(theme)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor accent READ accentColor)
    Q_PROPERTY(QColor textOnAccent READ textOnAccent)
    Q_PROPERTY(QColor surface READ surfaceColor)
    Q_PROPERTY(QColor surfaceElevated READ surfaceElevatedColor)
    Q_PROPERTY(QColor textPrimary READ textPrimaryColor)
    Q_PROPERTY(QColor textSecondary READ textSecondaryColor)
    Q_PROPERTY(QColor separator READ separatorColor)
    Q_PROPERTY(QColor good READ good)
    Q_PROPERTY(QColor warning READ warning)
    Q_PROPERTY(QColor critical READ critical)

public:
    /// That of a preset, or `customId`.
    QString id;
    /// What the user reads; never stored elsewhere and never compared.
    QString name;
    /// Highlights, selected states, gauges.
    ThemeColor accent;
    /// The panel itself.
    ThemeColor surface;
    /// Tint of tiles.
    ThemeColor surfaceElevated;
    ThemeColor textPrimary;
    ThemeColor textSecondary;
    /// Hairlines and rims.
    ThemeColor separator;

    bool operator==(const Theme &) const = default;

    QColor accentColor() const { return accent.toColor(); }
    /// What can be read on `accent`: white, or black where white would stand out from it by less than 3 to 1,
    /// the contrast that WCAG 2.1 (1.4.11) asks of controls.
    QColor textOnAccent() const;
    QColor surfaceColor() const { return surface.toColor(); }
    QColor surfaceElevatedColor() const { return surfaceElevated.toColor(); }
    QColor textPrimaryColor() const { return textPrimary.toColor(); }
    QColor textSecondaryColor() const { return textSecondary.toColor(); }
    QColor separatorColor() const { return separator.toColor(); }
    /// Signals, the same in every theme.
    static QColor good() { return signalColors::green; }
    static QColor warning() { return signalColors::orange; }
    static QColor critical() { return signalColors::red; }

    /// On the way from one to the other, at `progress` from 0 to 1; a spring goes a little beyond.
    static Theme mixed(const Theme &from, const Theme &to, double progress);

    static QString customId() { return QStringLiteral("custom"); }
    static QString customName() { return QStringLiteral("Custom"); }

    /// All presets, in the order in which the user sees them.
    static const QList<Theme> &builtIns();
    /// What holds until the user chooses, and after a reset.
    static const Theme &defaultTheme() { return midnight(); }

    static const Theme &midnight();
    static const Theme &graphite();
    static const Theme &ocean();
    static const Theme &sand();
    static const Theme &rose();
    static const Theme &forest();
    static const Theme &grape();
    static const Theme &slate();
    static const Theme &sunset();
    static const Theme &aurora();
    static const Theme &solar();
    static const Theme &cyber();
    static const Theme &frosty();
    static const Theme &vaporwave();
    static const Theme &obsidian();
    static const Theme &tokyoDrift();
    static const Theme &arcticHaze();
    static const Theme &lavaFlow();
    static const Theme &phantom();
    static const Theme &sakura();
    static const Theme &emeraldCity();
    static const Theme &moondust();
    static const Theme &infrared();
    static const Theme &deepSpace();
    static const Theme &caramel();
};

} // namespace brimlight
