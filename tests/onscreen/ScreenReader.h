#pragma once

#include "ChildProcess.h"

#include <QDBusConnection>
#include <QRect>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace brimlight::onscreen {

class XSession;

/// One object of the program as assistive technologies are told of it.
struct AccessibleObject
{
    QString path;
    QString name;
    /// "push button", "menu item".
    QString role;
    quint64 states = 0;
    QStringList actions;

    /// By the number that the protocol gives the state.
    bool is(int state) const { return states >> state & 1; }
    static constexpr int checked = 4;
    static constexpr int focusable = 11;
    static constexpr int focused = 12;
    static constexpr int selected = 23;
    static constexpr int visible = 30;

    /// Something that a user does something with. Texts pass for focusable, so that they can be read out.
    bool isControl() const
    {
        return (is(focusable) && role != u"label") || actions.contains(QStringLiteral("Press"));
    }
};

/// A session bus of its own with the accessibility bus behind it, and a screen reader on both. To be made
/// before the program starts.
class ScreenReader
{
public:
    explicit ScreenReader(XSession &session);
    ~ScreenReader();

    /// Everything that is visible, parents first. Empty while the program is not on the bus.
    std::vector<AccessibleObject> objects() const;
    /// The visible object of this role and name.
    std::optional<AccessibleObject> find(const QString &role, const QString &name) const;
    /// What it is called now; empty when it has gone.
    QString name(const AccessibleObject &object) const;
    /// "push button Next" of the innermost object that has the focus; empty without one.
    QString focus() const;
    QRect frame(const AccessibleObject &object) const;
    void grabFocus(const AccessibleObject &object) const;
    /// False when the object has no such action.
    bool act(const AccessibleObject &object, const QString &action) const;

private:
    QDBusMessage call(const QString &service, const QString &path, const QString &interface,
                      const QString &method, const QVariantList &arguments = {}) const;
    QVariantList ask(const QString &path, const QString &interface, const QString &method,
                     const QVariantList &arguments = {}) const;
    void visit(const QString &path, std::vector<AccessibleObject> &found) const;
    /// The program's name on the accessibility bus; empty while it is not there.
    QString program() const;

    std::unique_ptr<ChildProcess> m_daemon;
    QDBusConnection m_bus{QString()};
    mutable QString m_program;
};

} // namespace brimlight::onscreen
