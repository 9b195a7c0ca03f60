#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// Where the first-run walk-through stands. Its texts are keys of the translation table.
class OnboardingSteps : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int current READ current NOTIFY currentChanged)
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(QString icon READ icon NOTIFY currentChanged)
    Q_PROPERTY(bool hasBack READ hasBack NOTIFY currentChanged)
    Q_PROPERTY(bool isLast READ isLast NOTIFY currentChanged)

public:
    using QObject::QObject;

    int current() const { return m_current; }
    static int count();
    QString icon() const;
    bool hasBack() const { return m_current > 0; }
    /// The last step has "Get Started" instead of "Skip" and "Next".
    bool isLast() const { return m_current == count() - 1; }
    /// The English texts of the current step.
    Q_INVOKABLE QString title() const;
    Q_INVOKABLE QString description() const;

    Q_INVOKABLE void next();
    Q_INVOKABLE void back();

Q_SIGNALS:
    void currentChanged();

private:
    int m_current = 0;
};

} // namespace brimlight
