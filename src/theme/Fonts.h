#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The families of type the program sets its texts in. Each is the first one installed of a short list, else
/// the system's own choice of that kind, so a name here can always be drawn with. The first choices have
/// digits of one width in every weight, so that a clock or a gauge does not jitter.
class Fonts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString rounded READ rounded CONSTANT)
    Q_PROPERTY(QString monospaced READ monospaced CONSTANT)
    Q_PROPERTY(QString serif READ serif CONSTANT)

public:
    explicit Fonts(QObject *parent = nullptr);

    /// For nearly everything; clear from 9 pixels up.
    const QString &rounded() const { return m_rounded; }
    const QString &monospaced() const { return m_monospaced; }
    const QString &serif() const { return m_serif; }

    /// The first of the families that is installed. The system's kinds are "sans-serif", "monospace" and
    /// "serif".
    static QString firstInstalled(const QStringList &families, const QString &otherwise);

private:
    QString m_rounded;
    QString m_monospaced;
    QString m_serif;
};

} // namespace brimlight
