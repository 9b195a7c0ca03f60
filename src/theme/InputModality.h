#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// Whether the user works with keys or points. Only who uses keys needs to see where the focus is, and
/// closing a thing by a key must leave the focus where the next key is useful.
class InputModality : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isKeyboard READ isKeyboard NOTIFY changed)

public:
    /// What was pressed last in the watched window was a key; true before the first press.
    bool isKeyboard() const { return m_isKeyboard; }
    void watch(QObject &window) { window.installEventFilter(this); }
    /// The user has pointed at something that the window itself does not feel.
    Q_INVOKABLE void pointed() { setKeyboard(false); }

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setKeyboard(bool isKeyboard);

    bool m_isKeyboard = true;
};

} // namespace brimlight
