#pragma once

#include "grid/GridLayout.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The single owner of the user's widget layout.
class GridStore : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    explicit GridStore(QObject *parent = nullptr);

    const GridLayout &layout() const { return m_layout; }
    /// Replaces the whole document; the one way in which it changes.
    void setLayout(GridLayout layout);

    /// How many rows the page shows: those in use and an empty one to drop into, from 3 to 8.
    int displayRows(int page) const;

Q_SIGNALS:
    void layoutChanged();

private:
    GridLayout m_layout = GridLayout::defaultLayout();
};

} // namespace brimlight
