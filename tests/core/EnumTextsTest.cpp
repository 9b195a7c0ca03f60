#include "core/EnumTexts.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

enum class Fruit { apple, pear, plum };

constexpr EnumTexts<Fruit, 2> someFruit{{{{Fruit::pear, u"Birne"}, {Fruit::apple, u"Ápfel"}}}};

} // namespace

TEST(EnumTexts, GivesTheTextOfACaseAndTheCaseOfAText)
{
    EXPECT_EQ(someFruit.text(Fruit::apple), QStringLiteral("Ápfel"));
    EXPECT_EQ(someFruit.value(u"Ápfel"), Fruit::apple);
    EXPECT_EQ(someFruit.value(u"Birne"), Fruit::pear);
}

TEST(EnumTexts, TextsAreComparedWholeAndExactly)
{
    for (const QStringView text : {u"birne", u"Birn", u"Birnen", u""})
        EXPECT_FALSE(someFruit.value(text)) << qPrintable(text.toString());
    EXPECT_FALSE(someFruit.value({}));
}

TEST(EnumTexts, WhatIsNotInTheTableHasNoText)
{
    EXPECT_EQ(someFruit.text(Fruit::plum), QString());
}

TEST(EnumTexts, CoversIsFalseForAMissingCaseAndForATextTwice)
{
    static_assert(someFruit.covers(std::array{Fruit::apple, Fruit::pear}));
    static_assert(!someFruit.covers(std::array{Fruit::apple, Fruit::pear, Fruit::plum}));
    static_assert(!someFruit.covers(std::array{Fruit::apple, Fruit::plum}));
    constexpr EnumTexts<Fruit, 2> twice{{{{Fruit::pear, u"Obst"}, {Fruit::apple, u"Obst"}}}};
    static_assert(!twice.covers(std::array{Fruit::apple, Fruit::pear}));
}

} // namespace brimlight::test
