#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

class GridStore;
class NotchViewModel;

/// Which page capsules the header shows. A layout can have any number of pages: at most `maximumShown` stand
/// in the header, a window that holds the current one.
class PageControls : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(int first READ first NOTIFY changed)
    Q_PROPERTY(int shown READ shown NOTIFY changed)

public:
    static constexpr int maximumShown = 8;

    PageControls(GridStore &grid, NotchViewModel &viewModel, QObject *parent = nullptr);

    /// The first page that has a capsule, and how many have one; at least 1.
    int first() const;
    int shown() const;
    /// Adds a page and shows it.
    Q_INVOKABLE void addPage();

Q_SIGNALS:
    void changed();

private:
    qint64 pages() const;

    GridStore &m_grid;
    NotchViewModel &m_viewModel;
};

} // namespace brimlight
