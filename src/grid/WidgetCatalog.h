#pragma once

#include "grid/GridLayout.h"
#include "grid/WidgetDefinition.h"
#include "grid/WidgetEnvironment.h"
#include "grid/WidgetSession.h"

#include <QObject>
#include <QVariant>
#include <QtQmlIntegration>

#include <memory>
#include <unordered_map>

class QQmlComponent;
class QQmlEngine;

namespace brimlight {

/// One kind as the gallery shows it.
struct GalleryEntry
{
    Q_GADGET
    QML_VALUE_TYPE(galleryEntry)
    Q_PROPERTY(QString kind MEMBER kind)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString sizes MEMBER sizes)
    Q_PROPERTY(QString chip MEMBER chip)
    Q_PROPERTY(QString previewSize MEMBER previewSize)
    Q_PROPERTY(QSizeF naturalSize MEMBER naturalSize)

public:
    QString kind;
    QString name;
    QString symbol;
    /// All sizes: "1×1 · 2×1".
    QString sizes;
    /// The default size: "2×1".
    QString chip;
    QString previewSize;
    /// The preview before it is scaled, in points.
    QSizeF naturalSize;

    bool operator==(const GalleryEntry &) const = default;
};

/// One entry of a tile's "Size" menu.
struct SizeEntry
{
    Q_GADGET
    QML_VALUE_TYPE(sizeEntry)
    Q_PROPERTY(QString size MEMBER size)
    Q_PROPERTY(QString label MEMBER label)

public:
    QString size;
    QString label;

    bool operator==(const SizeEntry &) const = default;
};

/// "2×1" for a size, and its label in menus.
QString sizeText(WidgetSize size);
QString sizeLabel(WidgetSize size);
GalleryEntry galleryEntry(const WidgetMetadata &metadata);

/// What views ask of the registry.
class WidgetCatalog : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    explicit WidgetCatalog(const WidgetEnvironment &environment, QObject *parent = nullptr);
    ~WidgetCatalog() override;

    const WidgetEnvironment &environment() const { return m_environment; }
    WidgetSessions &sessions() { return m_sessions; }

    /// Of GalleryEntry: every kind, in the registry's order.
    Q_INVOKABLE QVariantList gallery() const;
    Q_INVOKABLE bool hasSettings(const QString &kind) const;
    /// Of SizeEntry; empty for an unknown kind.
    Q_INVOKABLE QVariantList sizes(const QString &kind) const;
    Q_INVOKABLE QString displayName(const QString &kind) const;
    /// The size of an instance; empty when there is none of this id.
    Q_INVOKABLE QString sizeOf(const QString &id) const;
    Q_INVOKABLE void setSize(const QString &id, const QString &size);
    Q_INVOKABLE void remove(const QString &id);
    /// An arrow key, as Qt::Key, moves the tile to the next place in this direction where it fits. False when
    /// there is none, and for other keys.
    Q_INVOKABLE bool move(const QString &id, int key);

    /// The compiled file, kept for all views made from it.
    QQmlComponent &component(QQmlEngine &engine, const QUrl &url);

private:
    const WidgetEnvironment &m_environment;
    WidgetSessions m_sessions;
    std::unordered_map<QString, std::unique_ptr<QQmlComponent>> m_components;
};

} // namespace brimlight
