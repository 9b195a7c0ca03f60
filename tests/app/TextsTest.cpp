#include "core/Translations.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace brimlight::test {
namespace {

constexpr std::array bothHousings{Housing::absent, Housing::present};

QString readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// By path.
QMap<QString, QString> views()
{
    QMap<QString, QString> found;
    QDirIterator files(QStringLiteral(BRIMLIGHT_SOURCES), {QStringLiteral("*.qml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        found.insert(path, readFile(path));
    }
    return found;
}

/// What the views ask to be translated.
QSet<QString> wanted()
{
    static const QRegularExpression call(QStringLiteral("qsTr\\(\"([^\"]*)\"\\)"));
    QSet<QString> texts;
    for (const QString &view : views()) {
        for (auto match = call.globalMatch(view); match.hasNext();)
            texts.insert(match.next().captured(1));
    }
    return texts;
}

QStringList allKeys()
{
    QSet<QString> keys = wanted();
    for (const QString &key : translationKeys())
        keys.insert(key);
    QStringList sorted(keys.begin(), keys.end());
    sorted.sort();
    return sorted;
}

struct Shown
{
    QString key;
    AppLanguage language;
    QString text;
};

/// Every text of every language, on every kind of screen.
std::vector<Shown> allTexts()
{
    std::vector<Shown> all;
    const QStringList keys = allKeys();
    for (const AppLanguage language : allLanguages) {
        for (const Housing housing : bothHousings) {
            for (const QString &key : keys)
                all.push_back({key, language, translate(key, language, housing)});
        }
    }
    return all;
}

QSet<QString> wordsOf(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}+"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    QSet<QString> words;
    for (auto match = word.globalMatch(text.toLower()); match.hasNext();)
        words.insert(match.next().captured());
    return words;
}

QSet<QString> list(const char *words)
{
    const QStringList split = QString::fromUtf8(words).split(QLatin1Char(' '));
    return {split.begin(), split.end()};
}

/// A word that this language writes as English does.
bool isWrittenAlike(const QString &text, AppLanguage language)
{
    static const QMap<AppLanguage, QSet<QString>> alike{
        {AppLanguage::german, {QStringLiteral("Widgets"), QStringLiteral("Minute")}},
        {AppLanguage::french,
         {QStringLiteral("Widgets"), QStringLiteral("Saturation"), QStringLiteral("Page"),
          QStringLiteral("Date"), QStringLiteral("Minute")}},
        {AppLanguage::spanish, {QStringLiteral("Widgets"), QStringLiteral("General")}}};
    return alike.value(language).contains(text);
}

} // namespace

TEST(Texts, WhatTheViewsAskForIsInTheTable)
{
    const QSet<QString> texts = wanted();
    ASSERT_GT(texts.size(), 40);
    // It is called so everywhere.
    const QString name = QStringLiteral("Brimlight");
    for (const QString &text : texts) {
        for (const AppLanguage language : allLanguages) {
            if (language == AppLanguage::english || text == name || isWrittenAlike(text, language))
                continue;
            EXPECT_NE(translate(text, language), text) << qPrintable(rawValue(language));
        }
    }
}

TEST(Texts, NoLanguageHasEnglishLeftOver)
{
    for (const Shown &shown : allTexts()) {
        if (shown.language == AppLanguage::english || shown.key == QLatin1String("Brimlight"))
            continue;
        const bool isAlike = isWrittenAlike(shown.key, shown.language);
        for (const Housing housing : bothHousings) {
            EXPECT_EQ(shown.text == translate(shown.key, AppLanguage::english, housing), isAlike)
                << qPrintable(rawValue(shown.language)) << ": " << qPrintable(shown.text);
        }
    }
}

TEST(Texts, NoTextMixesLanguages)
{
    // Words that only one of the languages has.
    const QMap<AppLanguage, QSet<QString>> own{
        {AppLanguage::english, list("the your and is now with for of to over slower before while")},
        {AppLanguage::german, list("und der den das nicht automatisch ist wird für auf deine sich öffnet")},
        {AppLanguage::french, list("les est votre vos ouvert avant dans automatiquement pour mises jour")},
        {AppLanguage::spanish, list("el los las tu abierto antes para muesca automáticamente y más")},
        {AppLanguage::italian, list("il gli dello prima aperto automaticamente aggiornamento è più")}};
    for (const Shown &shown : allTexts()) {
        const QSet<QString> words = wordsOf(shown.text);
        for (auto other = own.begin(); other != own.end(); ++other) {
            if (other.key() == shown.language)
                continue;
            for (const QString &word : other.value()) {
                EXPECT_FALSE(words.contains(word))
                    << qPrintable(rawValue(other.key())) << " \"" << qPrintable(word) << "\" in "
                    << qPrintable(rawValue(shown.language)) << ": " << qPrintable(shown.text);
            }
        }
    }
}

TEST(Texts, EverySentenceEndsInEveryLanguage)
{
    const auto sentences = [](const QString &text) {
        static const QRegularExpression end(QStringLiteral("[.!](?=\\s|$)"));
        return text.count(end);
    };
    for (const Shown &shown : allTexts()) {
        EXPECT_EQ(sentences(shown.text), sentences(shown.key))
            << qPrintable(rawValue(shown.language)) << ": " << qPrintable(shown.text);
    }
}

TEST(Texts, NobodySpeaksOfAnotherMakersMachine)
{
    static const QRegularExpression machine(QStringLiteral("\\b(i?mac(book|os|s)?|apple|finder)\\b"),
                                            QRegularExpression::CaseInsensitiveOption);
    for (const Shown &shown : allTexts())
        EXPECT_FALSE(shown.text.contains(machine)) << qPrintable(shown.text);
    // Whatever else the views write; names of symbols are not seen.
    static const QRegularExpression literal(QStringLiteral("^(?!.*symbol).*\"([^\"]*)\""),
                                            QRegularExpression::MultilineOption |
                                                QRegularExpression::CaseInsensitiveOption);
    const QMap<QString, QString> all = views();
    for (auto view = all.begin(); view != all.end(); ++view) {
        for (auto match = literal.globalMatch(view.value()); match.hasNext();) {
            const QString text = match.next().captured(1);
            EXPECT_FALSE(text.contains(machine)) << qPrintable(view.key()) << ": " << qPrintable(text);
        }
    }
}

TEST(Texts, ThereIsNoNotchWhereThereIsNoHousing)
{
    static const QRegularExpression notch(QStringLiteral("notch|encoche|muesca"),
                                          QRegularExpression::CaseInsensitiveOption);
    int changed = 0;
    for (const QString &key : allKeys()) {
        for (const AppLanguage language : allLanguages) {
            const QString plain = translate(key, language, Housing::absent);
            EXPECT_FALSE(plain.contains(notch)) << qPrintable(plain);
            changed += plain != translate(key, language, Housing::present);
        }
    }
    EXPECT_EQ(changed, 5 * 5);
}

} // namespace brimlight::test
