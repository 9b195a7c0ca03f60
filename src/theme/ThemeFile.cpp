#include "theme/ThemeFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <array>
#include <cmath>
#include <utility>

namespace brimlight {
namespace {

template<typename Field>
using Named = std::pair<const char *, Field>;

constexpr std::array textFields{Named<QString Theme::*>{"id", &Theme::id},
                                Named<QString Theme::*>{"name", &Theme::name}};

constexpr std::array colorFields{Named<ThemeColor Theme::*>{"accent", &Theme::accent},
                                 Named<ThemeColor Theme::*>{"surface", &Theme::surface},
                                 Named<ThemeColor Theme::*>{"surfaceElevated", &Theme::surfaceElevated},
                                 Named<ThemeColor Theme::*>{"textPrimary", &Theme::textPrimary},
                                 Named<ThemeColor Theme::*>{"textSecondary", &Theme::textSecondary},
                                 Named<ThemeColor Theme::*>{"separator", &Theme::separator}};

constexpr std::array channels{Named<double ThemeColor::*>{"red", &ThemeColor::red},
                              Named<double ThemeColor::*>{"green", &ThemeColor::green},
                              Named<double ThemeColor::*>{"blue", &ThemeColor::blue},
                              Named<double ThemeColor::*>{"opacity", &ThemeColor::opacity}};

std::optional<ThemeColor> decodeColor(const QJsonValue &json)
{
    ThemeColor color;
    for (const auto &[key, channel] : channels) {
        const QJsonValue number = json[QLatin1String(key)];
        if (!number.isDouble() || !std::isfinite(number.toDouble()))
            return std::nullopt;
        color.*channel = number.toDouble();
    }
    return color;
}

// QJsonObject sorts its keys, so the object is written by hand and only the texts are left to Qt.

QByteArray encodeText(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray encodeColor(const ThemeColor &color)
{
    QByteArray json;
    for (const auto &[key, channel] : channels) {
        json += json.isEmpty() ? "{\"" : ",\"";
        json += key;
        json += "\":" + QByteArray::number(color.*channel, 'g', QLocale::FloatingPointShortest);
    }
    return json + '}';
}

bool isFinite(const ThemeColor &color)
{
    return std::isfinite(color.red) && std::isfinite(color.green) && std::isfinite(color.blue) &&
           std::isfinite(color.opacity);
}

} // namespace

std::optional<Theme> decodeTheme(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    Theme theme;
    for (const auto &[key, field] : textFields) {
        const QJsonValue text = document[QLatin1String(key)];
        if (!text.isString())
            return std::nullopt;
        theme.*field = text.toString();
    }
    for (const auto &[key, field] : colorFields) {
        const std::optional<ThemeColor> color = decodeColor(document[QLatin1String(key)]);
        if (!color)
            return std::nullopt;
        theme.*field = *color;
    }
    return theme;
}

std::optional<QByteArray> encodeTheme(const Theme &theme)
{
    QByteArray json;
    for (const auto &[key, field] : textFields) {
        json += json.isEmpty() ? "{\"" : ",\"";
        json += key;
        json += "\":" + encodeText(theme.*field);
    }
    for (const auto &[key, field] : colorFields) {
        if (!isFinite(theme.*field))
            return std::nullopt;
        json += ",\"";
        json += key;
        json += "\":" + encodeColor(theme.*field);
    }
    return json + '}';
}

} // namespace brimlight
