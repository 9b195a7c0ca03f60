#include "ScreenReaderTest.h"

#include <utility>

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

bool ReadOnEachDesktop::shows(const QString &role, const QString &name) const
{
    return waitUntil([&] { return reader->find(role, name).has_value(); });
}

bool ReadOnEachDesktop::showsNoMore(const QString &role, const QString &name) const
{
    return waitUntil([&] { return !reader->find(role, name); });
}

bool ReadOnEachDesktop::isChecked(const QString &role, const QString &name) const
{
    const auto object = reader->find(role, name);
    return object && object->is(AccessibleObject::checked);
}

bool ReadOnEachDesktop::becomesChecked(const QString &role, const QString &name) const
{
    return waitUntil([&] { return isChecked(role, name); });
}

void ReadOnEachDesktop::click(const QString &role, const QString &name) const
{
    QRect frame;
    const auto rests = [&] {
        const auto object = reader->find(role, name);
        const QRect before = std::exchange(frame, object ? reader->frame(*object) : QRect());
        return !frame.isEmpty() && frame == before;
    };
    ASSERT_TRUE(waitUntil(rests)) << qPrintable(name);
    hand.clickAt(frame.center());
}

void ReadOnEachDesktop::press(const QString &role, const QString &name) const
{
    const auto isPressed = [&] {
        const auto object = reader->find(role, name);
        return object && reader->act(*object, u"Press"_s);
    };
    ASSERT_TRUE(waitUntil(isPressed)) << qPrintable(name);
}

void ReadOnEachDesktop::expectNamesAndRoles(int atLeast) const
{
    QStringList kept;
    EXPECT_TRUE(waitUntil([&] {
        kept = secrets(atLeast);
        return kept.isEmpty();
    })) << qPrintable(kept.join(u'\n'));
}

QStringList ReadOnEachDesktop::secrets(int atLeast) const
{
    static const QStringList roles{u"push button"_s, u"menu item"_s,     u"radio button"_s, u"page tab"_s,
                                   u"list item"_s,   u"list"_s,          u"slider"_s,       u"check box"_s,
                                   u"combo box"_s,   u"toggle button"_s, u"text"_s};
    QStringList kept;
    int controls = 0;
    for (const AccessibleObject &object : reader->objects()) {
        if (!object.isControl())
            continue;
        ++controls;
        const bool isNamed = !object.name.trimmed().isEmpty() && roles.contains(object.role);
        if (!isNamed || reader->frame(object).isEmpty())
            kept.append(object.role + u" \""_s + object.name + u'"');
    }
    if (controls < atLeast)
        kept.append(u"%1 controls of %2"_s.arg(controls).arg(atLeast));
    return kept;
}

} // namespace brimlight::onscreen
