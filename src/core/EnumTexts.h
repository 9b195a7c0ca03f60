#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace brimlight {

/// What the cases of an enumeration are called, in a file or on the screen: one constexpr table, read both
/// ways. Say with a `static_assert` that it covers the list of all cases.
///
///     constexpr EnumTexts<Fruit, 2> names{{{{Fruit::apple, u"apple"}, {Fruit::pear, u"pear"}}}};
///     static_assert(names.covers(allFruits));
template<typename Enum, size_t count>
struct EnumTexts
{
    struct Row
    {
        Enum value;
        std::u16string_view text;
    };
    std::array<Row, count> rows;

    /// The text of a case; empty for one that is not in the table.
    QString text(Enum value) const
    {
        const auto row = std::ranges::find(rows, value, &Row::value);
        return row == rows.end() ? QString() : QString::fromUtf16(row->text.data(), row->text.size());
    }

    /// The case whose text is exactly this one.
    std::optional<Enum> value(QStringView text) const
    {
        const auto row = std::ranges::find(rows, std::u16string_view(text.utf16(), text.size()), &Row::text);
        return row == rows.end() ? std::nullopt : std::optional(row->value);
    }

    /// Every case has a row, and no two rows share a case or a text.
    template<size_t cases>
    constexpr bool covers(const std::array<Enum, cases> &all) const
    {
        const auto isOnce = [this](auto projection, const auto &wanted) {
            return std::ranges::count(rows, wanted, projection) == 1;
        };
        return count == cases &&
               std::ranges::all_of(all, [&](Enum value) { return isOnce(&Row::value, value); }) &&
               std::ranges::all_of(rows, [&](const Row &row) { return isOnce(&Row::text, row.text); });
    }
};

} // namespace brimlight
