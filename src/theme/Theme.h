#pragma once

#include <QColor>
#include <QString>
#include <QtQmlIntegration>

namespace brimlight {

/// A colour in sRGB; channels and opacity from 0 to 1.
struct ThemeColor
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 1;

    bool operator==(const ThemeColor &) const = default;

    QColor toColor() const
    {
        return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue),
                                static_cast<float>(opacity));
    }

    /// From six hexadecimal digits, white space around and one leading "#" allowed.
    static ThemeColor fromHex(const QString &hex, double opacity);
};

/// Every colour the program draws with.
struct Theme
{
    Q_GADGET
    QML_VALUE_TYPE(theme)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor accent READ accentColor)
    Q_PROPERTY(QColor surface READ surfaceColor)
    Q_PROPERTY(QColor surfaceElevated READ surfaceElevatedColor)
    Q_PROPERTY(QColor textPrimary READ textPrimaryColor)
    Q_PROPERTY(QColor textSecondary READ textSecondaryColor)
    Q_PROPERTY(QColor separator READ separatorColor)

public:
    QString id;
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
    QColor surfaceColor() const { return surface.toColor(); }
    QColor surfaceElevatedColor() const { return surfaceElevated.toColor(); }
    QColor textPrimaryColor() const { return textPrimary.toColor(); }
    QColor textSecondaryColor() const { return textSecondary.toColor(); }
    QColor separatorColor() const { return separator.toColor(); }

    static Theme midnight();
};

} // namespace brimlight
