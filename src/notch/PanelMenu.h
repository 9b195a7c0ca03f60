#pragma once

#include "platform/StatusItem.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace brimlight {

/// The status item's menu inside of the panel, for desktops that show no status items. Whoever owns the
/// entries fills it; a row is an entry, and separators are told by the entry below them.
class PanelMenu : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the scene")

public:
    enum Role { titleRole = Qt::UserRole, startsGroupRole, isCheckableRole, isCheckedRole };

    using QAbstractListModel::QAbstractListModel;

    /// As in StatusItem.
    void setMenu(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen);
    void setChecked(int index, bool isOn);

    /// To be called by the view each time before it opens.
    Q_INVOKABLE void aboutToOpen() const;
    Q_INVOKABLE void choose(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Row
    {
        StatusMenuEntry entry;
        /// Counted with the separators.
        int index = 0;
        bool startsGroup = false;
        bool isChecked = false;
    };

    std::vector<Row> m_rows;
    std::function<void()> m_willOpen;
};

} // namespace brimlight
