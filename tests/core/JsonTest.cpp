#include "core/JsonReader.h"
#include "core/JsonWriter.h"

#include <gtest/gtest.h>

#include <QJsonDocument>

#include <limits>

namespace brimlight::test {
namespace {

QByteArray written(const QString &text)
{
    JsonWriter json;
    json.value(QStringView(text));
    return json.bytes();
}

QByteArray written(double number)
{
    JsonWriter json;
    json.value(number);
    return json.bytes();
}

JsonReader reader(const char *json)
{
    return JsonReader::fromBytes(json);
}

} // namespace

TEST(JsonWriter, MembersStandInTheOrderInWhichTheyAreGivenWithoutWhiteSpace)
{
    JsonWriter json;
    json.beginObject();
    json.member("z", QStringLiteral("last"));
    json.member("a", 7);
    json.key("list");
    json.beginArray();
    json.value(0.5);
    json.value(true);
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.endArray();
    json.member("m", false);
    json.endObject();
    EXPECT_EQ(json.bytes(), R"({"z":"last","a":7,"list":[0.5,true,{},[]],"m":false})");
    EXPECT_TRUE(json.isValid());
}

TEST(JsonWriter, EscapesWhatJsonDemandsAndNothingElse)
{
    EXPECT_EQ(written(QStringLiteral("a \"b\" \\ /")), R"("a \"b\" \\ /")");
    EXPECT_EQ(written(QStringLiteral("\b\f\n\r\t\x01\x1f\x7f")), "\"\\b\\f\\n\\r\\t\\u0001\\u001f\x7f\"");
    EXPECT_EQ(written(QStringLiteral("é桜🌸")), QStringLiteral("\"é桜🌸\"").toUtf8());
    EXPECT_EQ(written(QString(QChar(0xd800)) + u'x' + QChar(0xdc00)), R"("\ud800x\udc00")");
    EXPECT_EQ(written(QString()), R"("")");
}

TEST(JsonWriter, EveryCharacterReadsBack)
{
    QString all;
    for (char16_t c = 0; c < 0x3000; ++c)
        all.append(QChar(c));
    JsonWriter json;
    json.beginObject();
    json.member(all, all);
    json.endObject();
    EXPECT_EQ(QJsonDocument::fromJson(json.bytes()).object().value(all).toString(), all);
}

TEST(JsonWriter, NumbersTakeTheirShortestForm)
{
    EXPECT_EQ(written(1), "1");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(0.19607843137254902), "0.19607843137254902");
    EXPECT_EQ(written(-7500), "-7500");
    EXPECT_EQ(written(1e300), "1e+300");
    JsonWriter json;
    json.value(std::numeric_limits<qint64>::min());
    EXPECT_EQ(json.bytes(), "-9223372036854775808");
}

TEST(JsonWriter, ANumberThatJsonCannotSayMakesTheDocumentInvalid)
{
    for (const double number :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        JsonWriter json;
        json.value(number);
        json.value(1.0);
        EXPECT_FALSE(json.isValid()) << number;
    }
}

TEST(JsonWriter, IdsAreUpperCaseWithHyphens)
{
    JsonWriter json;
    json.value(QUuid::fromString(QStringLiteral("{0a0b0c0d-0000-4000-8000-00000000ffff}")));
    EXPECT_EQ(json.bytes(), R"("0A0B0C0D-0000-4000-8000-00000000FFFF")");
}

TEST(JsonReader, GivesEveryTypeAndStaysValid)
{
    JsonReader json = reader(R"({"t":"x","n":0.5,"i":-3,"u":"0A0B0C0D-0000-4000-8000-00000000FFFF",)"
                             R"("l":[1,2],"o":{"t":"y"},"m":{"k":"v"},"unknown":[]})");
    EXPECT_EQ(json.text("t"), QStringLiteral("x"));
    EXPECT_EQ(json.number("n"), 0.5);
    EXPECT_EQ(json.integer("i", 0), -3);
    EXPECT_EQ(json.uuid("u"), QUuid::fromString(QStringLiteral("0a0b0c0d-0000-4000-8000-00000000ffff")));
    EXPECT_EQ(json.array("l").size(), 2);
    EXPECT_EQ(json.object("o").text("t"), QStringLiteral("y"));
    EXPECT_EQ(json.texts("m")->value(QStringLiteral("k")), QStringLiteral("v"));
    EXPECT_TRUE(json.isValid());
}

TEST(JsonReader, MissingOrNullGivesTheDefaultWhereThereIsOne)
{
    JsonReader json = reader(R"({"i":null,"m":null})");
    EXPECT_EQ(json.integer("i", 5), 5);
    EXPECT_EQ(json.integer("other", 6), 6);
    EXPECT_FALSE(json.texts("m"));
    EXPECT_FALSE(json.texts("other"));
    EXPECT_TRUE(json.isValid());
}

class JsonReaderFails : public testing::TestWithParam<const char *>
{
};

TEST_P(JsonReaderFails, OnAnyMissingMemberOrWrongType)
{
    const QList<std::function<void(JsonReader &)>> questions{
        [](JsonReader &json) { json.text("k"); },   [](JsonReader &json) { json.number("k"); },
        [](JsonReader &json) { json.uuid("k"); },   [](JsonReader &json) { json.array("k"); },
        [](JsonReader &json) { json.object("k"); }, [](JsonReader &json) { json.fail(); }};
    for (const auto &question : questions) {
        JsonReader json = reader(GetParam());
        question(json);
        EXPECT_FALSE(json.isValid()) << (&question - &questions.front());
    }
}

INSTANTIATE_TEST_SUITE_P(Contents, JsonReaderFails,
                         testing::Values("", "[]", "{", "{}", R"({"k":null})", R"({"k":true})"));

TEST(JsonReader, ANumberThatIsNotWholeOrTooLargeIsNoInteger)
{
    for (const char *json : {R"({"k":0.5})", R"({"k":1e300})", R"({"k":"7"})", R"({"k":true})"}) {
        JsonReader fields = reader(json);
        fields.integer("k", 0);
        EXPECT_FALSE(fields.isValid()) << json;
    }
}

TEST(JsonReader, TextsAreAllTexts)
{
    for (const char *json : {R"({"k":{"a":"b","c":1}})", R"({"k":[]})"}) {
        JsonReader fields = reader(json);
        fields.texts("k");
        EXPECT_FALSE(fields.isValid()) << json;
    }
}

TEST(JsonReader, AnIdHasExactlyItsHyphenatedForm)
{
    for (const char *json :
         {R"({"k":"{0a0b0c0d-0000-4000-8000-00000000ffff}"})", R"({"k":"0a0b0c0d00004000800000000000ffff"})",
          R"({"k":"0a0b0c0d-0000-4000-8000-00000000fffg"})"}) {
        JsonReader fields = reader(json);
        fields.uuid("k");
        EXPECT_FALSE(fields.isValid()) << json;
    }
}

} // namespace brimlight::test
