#include "theme/ThemeFile.h"

#include "core/JsonReader.h"
#include "core/JsonWriter.h"

#include <array>
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

void write(JsonWriter &json, const ThemeColor &color)
{
    json.beginObject();
    for (const auto &[key, channel] : channels)
        json.member(key, color.*channel);
    json.endObject();
}

} // namespace

std::optional<Theme> decodeTheme(const QByteArray &bytes)
{
    JsonReader json = JsonReader::fromBytes(bytes);
    Theme theme;
    for (const auto &[key, field] : textFields)
        theme.*field = json.text(key);
    for (const auto &[key, field] : colorFields) {
        JsonReader color = json.object(key);
        for (const auto &[channel, part] : channels)
            theme.*field.*part = color.number(channel);
        if (!color.isValid())
            return std::nullopt;
    }
    return json.isValid() ? std::optional(theme) : std::nullopt;
}

std::optional<QByteArray> encodeTheme(const Theme &theme)
{
    JsonWriter json;
    json.beginObject();
    for (const auto &[key, field] : textFields)
        json.member(key, theme.*field);
    for (const auto &[key, field] : colorFields) {
        json.key(key);
        write(json, theme.*field);
    }
    json.endObject();
    return json.isValid() ? std::optional(json.bytes()) : std::nullopt;
}

} // namespace brimlight
