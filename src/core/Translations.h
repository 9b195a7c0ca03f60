#pragma once

#include <QString>

#include <array>
#include <optional>

namespace brimlight {

/// The languages of the user interface. Chosen by the user, never taken from the system's locale.
enum class AppLanguage { english, german, french, spanish, italian };

inline constexpr std::array allLanguages{AppLanguage::english, AppLanguage::german, AppLanguage::french,
                                         AppLanguage::spanish, AppLanguage::italian};

/// The stored text of a language ("en"), and back; absent for a text that names none.
QString rawValue(AppLanguage language);
std::optional<AppLanguage> languageFromRawValue(const QString &raw);
/// The language's name for itself.
QString label(AppLanguage language);

/// Whether the screen has a camera housing, the notch. Where it has none, texts speak of the top edge.
enum class Housing { absent, present };

/// The keys of the table in its order, without those that were added to it later. A key is the English text
/// for a screen with a housing.
QStringList translationKeys();

/// The text of `key` in `language`; `key` itself when it is not translated.
QString translate(const QString &key, AppLanguage language, Housing housing = Housing::present);

} // namespace brimlight
