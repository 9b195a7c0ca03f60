#include "app/Stores.h"
#include "fakes/FakePlatform.h"
#include "notch/OnboardingSteps.h"
#include "theme/SymbolTable.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace brimlight::test {
namespace {

using Names = QSet<QString>;

/// The sources with these endings, by their paths.
QMap<QString, QString> sources(const QStringList &endings)
{
    QMap<QString, QString> texts;
    QDirIterator files(QStringLiteral(BRIMLIGHT_SOURCES), endings, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        texts.insert(file.fileName(), QString::fromUtf8(file.readAll()));
    }
    return texts;
}

/// What a pattern captures, one expression for each place where it matches.
QStringList captured(const QString &text, const QString &pattern)
{
    QStringList expressions;
    const QRegularExpression wanted(pattern, QRegularExpression::MultilineOption);
    for (auto matches = wanted.globalMatch(text); matches.hasNext();)
        expressions.append(matches.next().captured(1));
    return expressions;
}

/// The texts that an expression can have as its value; what it only compares with is left out.
QStringList literals(QString expression)
{
    expression.remove(QRegularExpression(QStringLiteral("[=!]==? *\"[^\"]*\"")));
    QStringList found = captured(expression, QStringLiteral("\"([^\"]*)\""));
    found.removeAll(QString());
    return found;
}

/// The `name` expressions of all symbols in a QML text.
QStringList symbolNames(const QString &qml)
{
    QStringList expressions;
    for (qsizetype at = 0; (at = qml.indexOf(QStringLiteral("Symbol {"), at)) >= 0; ++at) {
        qsizetype end = qml.indexOf(u'{', at);
        int depth = 0;
        do {
            depth += qml[end] == u'{' ? 1 : qml[end] == u'}' ? -1 : 0;
            ++end;
        } while (depth > 0 && end < qml.size());
        expressions += captured(qml.sliced(at, end - at), QStringLiteral("^\\s*name: (.*)$"));
    }
    return expressions;
}

Names tableNames()
{
    Names names;
    for (const SymbolEntry &entry : symbolTable())
        names.insert(QString::fromUtf8(entry.name.data(), static_cast<qsizetype>(entry.name.size())));
    return names;
}

void expectInTable(const QStringList &names, const QString &where)
{
    static const Names known = tableNames();
    for (const QString &name : names)
        EXPECT_TRUE(known.contains(name)) << qPrintable(name) << " in " << qPrintable(where);
}

/// The properties that hand a name on to a symbol: `symbol` of `name: root.symbol`.
Names carriers(const QMap<QString, QString> &qml)
{
    Names found;
    for (const QString &text : qml) {
        for (const QString &expression : symbolNames(text)) {
            if (literals(expression).isEmpty())
                found.insert(captured(expression, QStringLiteral("(\\w+)$")).value(0));
        }
    }
    return found;
}

} // namespace

TEST(SymbolNames, OfEveryKindOfWidgetAreInTheTable)
{
    const FakePlatform machine;
    const Stores stores(machine.platform, machine.log);
    QStringList names;
    for (const WidgetDefinition &definition : stores.registry.all())
        names.append(definition.metadata.symbol);
    EXPECT_EQ(names.size(), 45);
    expectInTable(names, QStringLiteral("the definitions"));
}

TEST(SymbolNames, OfTheWalkThroughAreInTheTable)
{
    OnboardingSteps steps;
    for (int step = 0; step < OnboardingSteps::count(); ++step, steps.next())
        expectInTable({steps.icon()}, steps.title());
}

TEST(SymbolNames, InViewsAreInTheTable)
{
    const auto qml = sources({QStringLiteral("*.qml")});
    const QString handedOn = QStringLiteral("^\\s*(?:(?:readonly )?property string )?(?:%1): (.*)$")
                                 .arg(carriers(qml).values().join(u'|'));
    QStringList all;
    for (auto file = qml.begin(); file != qml.end(); ++file) {
        for (const QString &expression : symbolNames(*file) + captured(*file, handedOn)) {
            expectInTable(literals(expression), file.key());
            all += literals(expression);
        }
    }
    // The search itself: a name of a symbol, of a choice, and handed on to another file.
    for (const char *name : {"questionmark.circle", "pin", "pin.fill", "xmark.circle.fill"})
        EXPECT_TRUE(all.contains(QLatin1String(name))) << name;
}

TEST(SymbolNames, ThatViewsAreGivenAreInTheTable)
{
    const auto qml = sources({QStringLiteral("*.qml")});
    const auto code = sources({QStringLiteral("*.cpp"), QStringLiteral("*.h")});
    const QString joined = QStringList(code.values()).join(u'\n') + QStringList(qml.values()).join(u'\n');
    const Names properties = carriers(qml);
    EXPECT_TRUE(properties.contains(QStringLiteral("symbol")));
    QStringList all;
    for (const QString &property : properties) {
        // A name from anywhere else, such as the entries of a model, would not be found here.
        EXPECT_FALSE(
            captured(joined, QStringLiteral("\\b(property string %1|QString %1)\\b").arg(property)).isEmpty())
            << "nobody has the property " << qPrintable(property);
        for (auto file = code.begin(); file != code.end(); ++file) {
            for (const QString &expression :
                 captured(*file, QStringLiteral("\\.%1 = ([^,;{}]*)").arg(property))) {
                expectInTable(literals(expression), file.key());
                all += literals(expression);
            }
        }
    }
    EXPECT_TRUE(all.contains(QStringLiteral("moon.stars.fill")));
}

/// Wherever a text of the code looks like the name of a symbol, it is one.
TEST(SymbolNames, InCodeAreInTheTable)
{
    Names firstWords;
    for (const QString &name : tableNames())
        firstWords.insert(name.section(u'.', 0, 0));
    const QRegularExpression fileName(QStringLiteral("\\.(json|svg|qml|png|desktop)$"));
    int found = 0;
    const auto code = sources({QStringLiteral("*.cpp"), QStringLiteral("*.h")});
    for (auto file = code.begin(); file != code.end(); ++file) {
        if (file.key().endsWith(QStringLiteral("/SymbolTable.cpp")))
            continue;
        for (const QString &text : captured(*file, QStringLiteral("\"([a-z]+(?:\\.[a-z0-9]+)+)\""))) {
            if (!firstWords.contains(text.section(u'.', 0, 0)) || text.contains(fileName))
                continue;
            expectInTable({text}, file.key());
            ++found;
        }
    }
    EXPECT_GT(found, 20);
}

} // namespace brimlight::test
