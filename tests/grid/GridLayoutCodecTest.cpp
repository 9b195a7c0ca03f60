#include "grid/GridLayoutCodec.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimlight::test {
namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();
const QByteArray id = "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9";
const QByteArray required = R"("id":"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9","kind":"clock","size":"small")";

/// A document with one instance of exactly these members.
QByteArray withInstance(const QByteArray &members)
{
    return "{\"instances\":[{" + members + "}]}";
}

/// ... of the required members and these.
QByteArray with(const QByteArray &members)
{
    return withInstance(required + ',' + members);
}

WidgetInstance some(qint64 page = 0)
{
    return {.id = QUuid::fromString(QString::fromLatin1(id)), .kind = QStringLiteral("clock"), .page = page};
}

} // namespace

TEST(GridLayoutCodec, NoInstancesIsOnePage)
{
    EXPECT_EQ(decodeLayout(R"({"instances":[]})"), (GridLayout{.instances = {}, .pageCount = 1}));
}

TEST(GridLayoutCodec, APageCountBelowOneBecomesOne)
{
    for (const char *count : {"0", "-1", "-9223372036854775808"}) {
        const auto layout = decodeLayout(QByteArray(R"({"instances":[],"pageCount":)") + count + '}');
        ASSERT_TRUE(layout) << count;
        EXPECT_EQ(layout->pageCount, 1) << count;
    }
}

TEST(GridLayoutCodec, ALargePageRaisesThePageCount)
{
    const auto layout = decodeLayout("{\"instances\":[{" + required + ",\"page\":7}],\"pageCount\":2}");
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pageCount, 8);
}

TEST(GridLayoutCodec, EmptyPagesAreKept)
{
    const auto layout = decodeLayout("{\"instances\":[{" + required + "}],\"pageCount\":5}");
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pageCount, 5);
}

TEST(GridLayoutCodec, AFileFromBeforeTheCellsGivesUnplacedInstances)
{
    const auto layout = decodeLayout(withInstance(required));
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->instances, QList{some()});
    EXPECT_FALSE(layout->instances[0].isPlaced());
}

TEST(GridLayoutCodec, NullCountsAsAnAbsentKey)
{
    const auto layout = decodeLayout(
        "{\"instances\":[{" + required +
        R"(,"order":null,"page":null,"col":null,"row":null,"settings":null}],"pageCount":null})");
    ASSERT_TRUE(layout);
    EXPECT_EQ(*layout, (GridLayout{.instances = {some()}, .pageCount = 1}));
}

TEST(GridLayoutCodec, KeysStandInTheirOrderWithoutWhiteSpace)
{
    WidgetInstance instance = some(1);
    instance.size = WidgetSize::wideTall;
    instance.order = 4;
    instance.col = 2;
    instance.row = 3;
    instance.settings = {{QStringLiteral("format"), QStringLiteral("24")}};
    EXPECT_EQ(encodeLayout({.instances = {instance, some()}, .pageCount = 2}),
              "{\"instances\":[{\"id\":\"" + id +
                  R"(","kind":"clock","size":"wideTall","order":4,"page":1,"col":2,"row":3,)"
                  R"("settings":{"format":"24"}},{"id":")" +
                  id +
                  R"(","kind":"clock","size":"small","order":0,"page":0,"col":-1,"row":-1}],"pageCount":2})");
}

TEST(GridLayoutCodec, AbsentSettingsAreNotWrittenAndEmptyOnesAre)
{
    WidgetInstance instance = some();
    EXPECT_FALSE(encodeLayout({.instances = {instance}}).contains("settings"));
    instance.settings.emplace();
    const QByteArray encoded = encodeLayout({.instances = {instance}});
    EXPECT_TRUE(encoded.contains("\"settings\":{}"));
    EXPECT_EQ(decodeLayout(encoded)->instances[0].settings, WidgetSettings());
}

TEST(GridLayoutCodec, WhatIsWrittenReadsTheSame)
{
    const QString texts[] = {QString(),
                             QStringLiteral("Zürich 🌍 日本"),
                             QStringLiteral("quote \" backslash \\ slash / tab \t newline \n"),
                             QString(QChar(1)) + QChar(0x1f) + QChar(0x7f) + QChar(0),
                             QStringLiteral("half a pair ") + QChar(0xd83d) + QStringLiteral(" and ") +
                                 QChar(0xde00) + QChar(0xd83d),
                             QString(QChar(0xfffe)) + QChar(0xfeff)};
    for (const QString &text : texts) {
        GridLayout layout{.instances = {some(largest), some(smallest), some(3)}, .pageCount = largest};
        layout.instances[0].kind = text;
        layout.instances[1].settings = {{text, text}, {QStringLiteral("k"), QStringLiteral("v")}};
        layout.instances[2].order = smallest;
        layout.instances[2].col = largest;
        layout.instances[2].row = smallest;
        EXPECT_EQ(decodeLayout(encodeLayout(layout)), layout) << encodeLayout(layout).constData();
    }
}

TEST(GridLayoutCodec, AnUnknownKindIsKept)
{
    const auto layout = decodeLayout(
        R"({"instances":[{"id":"0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9","kind":"gone","size":"small"}]})");
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->instances[0].kind, QStringLiteral("gone"));
}

TEST(GridLayoutCodec, UnknownKeysAreIgnored)
{
    EXPECT_TRUE(decodeLayout("{\"version\":{},\"instances\":[{" + required + ",\"colour\":[1]}]}"));
}

TEST(GridLayoutCodec, OneUnknownSizeFailsTheWholeFile)
{
    EXPECT_FALSE(decodeLayout("{\"instances\":[{" + required + R"(},{"id":")" + id +
                              R"(","kind":"clock","size":"medium"},{)" + required + "}]}"));
}

TEST(GridLayoutCodec, TheIdHasExactlyItsHyphenatedForm)
{
    const auto decodes = [](const QByteArray &text) {
        return decodeLayout(withInstance(R"("kind":"clock","size":"small","id":")" + text + '"')).has_value();
    };
    EXPECT_TRUE(decodes(id));
    EXPECT_TRUE(decodes(id.toLower()));
    EXPECT_TRUE(decodes("00000000-0000-0000-0000-000000000000"));
    for (const QByteArray &text :
         {QByteArray(), '{' + id + '}', id.chopped(1), id + '0', QByteArray(id).replace('-', ""),
          QByteArray(id).replace('A', 'G'), QByteArray(id).replace('-', '0'), QByteArray(36, '-'),
          "\xC3\xA4" + id.sliced(1), QByteArray(id).replace("2C3D-", "2C3-D")})
        EXPECT_FALSE(decodes(text)) << text.constData();
}

TEST(GridLayoutCodec, NumbersAreWholeAndFitIntoSixtyFourBits)
{
    const auto read = [](const QByteArray &number) -> std::optional<qint64> {
        const auto layout = decodeLayout(with("\"order\":" + number));
        return layout ? std::optional(layout->instances[0].order) : std::nullopt;
    };
    EXPECT_EQ(read("0"), 0);
    EXPECT_EQ(read("-0"), 0);
    EXPECT_EQ(read("1"), 1);
    EXPECT_EQ(read("-12"), -12);
    EXPECT_EQ(read("3.0"), 3);
    EXPECT_EQ(read("1e2"), 100);
    EXPECT_EQ(read("9223372036854775807"), largest);
    EXPECT_EQ(read("-9223372036854775808"), smallest);
    for (const char *number : {"0.5", "-1.5", "9223372036854775808", "1e19", "1e300", "-1e300"})
        EXPECT_FALSE(read(number)) << number;
}

TEST(GridLayoutCodec, TheLargestPageDoesNotOverflowThePageCount)
{
    const auto layout = decodeLayout(with("\"page\":9223372036854775807"));
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->pageCount, largest);
}

TEST(GridLayoutCodec, AWrongTypeOrAMissingKeyFails)
{
    for (const QByteArray &json : {QByteArray("{}"),
                                   QByteArray("[]"),
                                   QByteArray("null"),
                                   QByteArray("7"),
                                   QByteArray(R"({"instances":null})"),
                                   QByteArray(R"({"instances":{}})"),
                                   QByteArray(R"({"instances":"x"})"),
                                   QByteArray(R"({"instances":[null]})"),
                                   QByteArray(R"({"instances":[[]]})"),
                                   QByteArray(R"({"instances":[],"pageCount":"2"})"),
                                   QByteArray(R"({"instances":[],"pageCount":true})"),
                                   QByteArray(R"({"instances":[],"pageCount":1.5})"),
                                   withInstance(R"("kind":"clock","size":"small")"),
                                   withInstance("\"size\":\"small\",\"id\":\"" + id + '"'),
                                   withInstance("\"kind\":\"clock\",\"id\":\"" + id + '"'),
                                   withInstance(R"("kind":"clock","size":"small","id":null)"),
                                   withInstance(R"("kind":null,"size":"small","id":")" + id + '"'),
                                   withInstance(R"("kind":7,"size":"small","id":")" + id + '"'),
                                   withInstance(R"("kind":"clock","size":0,"id":")" + id + '"'),
                                   with(R"("order":"1")"),
                                   with(R"("page":false)"),
                                   with(R"("col":[])"),
                                   with(R"("row":{})"),
                                   with(R"("settings":[])"),
                                   with(R"("settings":"x")"),
                                   with(R"("settings":{"a":1})"),
                                   with(R"("settings":{"a":null})"),
                                   with(R"("settings":{"a":"b","c":{}})")})
        EXPECT_FALSE(decodeLayout(json)) << json.constData();
}

TEST(GridLayoutCodec, EveryCutOffFileFails)
{
    GridLayout layout = GridLayout::defaultLayout();
    layout.instances[1].settings = {{QStringLiteral("city"), QStringLiteral("Zürich")}};
    const QByteArray whole = encodeLayout(layout);
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(decodeLayout(whole.first(length))) << length;
    EXPECT_TRUE(decodeLayout(whole));
}

TEST(GridLayoutCodec, BytesThatAreNoTextFail)
{
    EXPECT_FALSE(decodeLayout(QByteArray(4096, '\0')));
    EXPECT_FALSE(decodeLayout(QByteArray(4096, '\xff')));
    EXPECT_FALSE(decodeLayout(withInstance(R"("kind":")"
                                           "\xff"
                                           R"(","size":"small","id":")" +
                                           id + '"')));
}

TEST(GridLayoutCodec, DeepNestingFails)
{
    for (const int depth : {100, 1000, 100'000}) {
        const QByteArray nest = QByteArray(depth, '[') + QByteArray(depth, ']');
        EXPECT_FALSE(decodeLayout(nest)) << depth;
        EXPECT_FALSE(decodeLayout("{\"instances\":" + nest + '}')) << depth;
        EXPECT_FALSE(decodeLayout(QByteArray("{\"instances\":").repeated(depth) + QByteArray(depth, '}')));
    }
}

} // namespace brimlight::test
