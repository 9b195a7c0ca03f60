#include "notch/PanelMenu.h"

#include <algorithm>

namespace brimlight {

void PanelMenu::setMenu(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen)
{
    beginResetModel();
    m_rows.clear();
    bool separated = false;
    for (int index = 0; StatusMenuEntry & entry : entries) {
        const bool isSeparator = entry.title.isEmpty();
        if (!isSeparator)
            m_rows.push_back({.entry = std::move(entry), .index = index, .startsGroup = separated});
        separated = isSeparator;
        ++index;
    }
    m_willOpen = std::move(willOpen);
    endResetModel();
}

void PanelMenu::setChecked(int index, bool isOn)
{
    const auto row = std::ranges::find(m_rows, index, &Row::index);
    if (row == m_rows.end())
        return;
    row->isChecked = isOn;
    const QModelIndex changed = createIndex(static_cast<int>(row - m_rows.begin()), 0);
    Q_EMIT dataChanged(changed, changed, {isCheckedRole});
}

void PanelMenu::aboutToOpen() const
{
    if (m_willOpen)
        m_willOpen();
}

void PanelMenu::choose(int row) const
{
    if (row >= 0 && row < rowCount() && m_rows[static_cast<size_t>(row)].entry.action)
        m_rows[static_cast<size_t>(row)].entry.action();
}

int PanelMenu::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PanelMenu::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[static_cast<size_t>(index.row())];
    switch (role) {
    case titleRole:
        return row.entry.title;
    case startsGroupRole:
        return row.startsGroup;
    case isCheckableRole:
        return row.entry.isCheckable;
    case isCheckedRole:
        return row.isChecked;
    default:
        return {};
    }
}

QHash<int, QByteArray> PanelMenu::roleNames() const
{
    return {{titleRole, "title"},
            {startsGroupRole, "startsGroup"},
            {isCheckableRole, "isCheckable"},
            {isCheckedRole, "isChecked"}};
}

} // namespace brimlight
