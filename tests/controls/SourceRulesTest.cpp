#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

namespace brimlight::test {
namespace {

QMap<QString, QString> qmlFiles()
{
    QMap<QString, QString> texts;
    QDirIterator files(QStringLiteral(BRIMLIGHT_SOURCES), {QStringLiteral("*.qml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        texts.insert(file.fileName(), QString::fromUtf8(file.readAll()));
    }
    return texts;
}

/// The places where a pattern is found: "name.qml: what stands there".
QStringList places(const QMap<QString, QString> &files, const char *pattern)
{
    QStringList found;
    const QRegularExpression wanted(QLatin1String(pattern), QRegularExpression::MultilineOption);
    for (auto file = files.begin(); file != files.end(); ++file) {
        for (auto matches = wanted.globalMatch(*file); matches.hasNext();)
            found.append(file.key().section(u'/', -1) + QStringLiteral(": ") +
                         matches.next().captured().trimmed());
    }
    return found;
}

struct Rule
{
    const char *name;
    /// What no view contains, and a line that the pattern has to find.
    const char *pattern;
    const char *example;
};

void PrintTo(const Rule &rule, std::ostream *out)
{
    *out << rule.name;
}

class SourceRules : public testing::TestWithParam<Rule>
{
};

// A part of a font is as literal as its size: styles are taken whole.
const Rule rules[] = {
    {"fonts", R"(^\s*font\.\w+:.*$)", "    font.pixelSize: root.large ? 12 : 9"},
    {"sizes", R"(Fonts\.sized\([^\n]*, \d+(\.\d+)?\))", "font: Fonts.sized(Fonts.label, 13)"},
    {"durations", R"(\bduration: .*\b\d\d+\b.*$)", "        duration: root.on ? 120 : 90"},
    {"intervals", R"(\binterval: \d+$)", "    interval: 700"},
    {"easings", R"(\beasing\.\w+:.*$)", "    easing.type: Easing.OutQuad"},
    {"animations", R"(\b(Number|Color|Property|Rotation|Spring|Smoothed)Animation \{)", "NumberAnimation {"},
};

} // namespace

TEST_P(SourceRules, NoViewHoldsALiteral)
{
    const QMap<QString, QString> examples{{QStringLiteral("Example.qml"), QLatin1String(GetParam().example)}};
    ASSERT_EQ(places(examples, GetParam().pattern).size(), 1) << "the search itself";
    QMap<QString, QString> files = qmlFiles();
    ASSERT_GT(files.size(), 60);
    // The one that is made of them.
    files.removeIf(
        [](const auto &file) { return file.key().endsWith(QStringLiteral("/MotionAnimation.qml")); });
    EXPECT_EQ(places(files, GetParam().pattern), QStringList());
}

INSTANTIATE_TEST_SUITE_P(All, SourceRules, testing::ValuesIn(rules),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(Sources, EveryComponentIsBoundToItsFile)
{
    const QMap<QString, QString> files = qmlFiles();
    for (auto file = files.begin(); file != files.end(); ++file)
        EXPECT_TRUE(file->startsWith(QStringLiteral("pragma ComponentBehavior: Bound\n")))
            << qPrintable(file.key());
}

} // namespace brimlight::test
