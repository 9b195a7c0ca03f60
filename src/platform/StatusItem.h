#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

namespace brimlight {

/// A square picture: four bytes a pixel, alpha, red, green and blue, not premultiplied, rows from the top.
struct StatusPicture
{
    int side = 0;
    QByteArray argb;
};

struct StatusImage
{
    /// The name of the symbol.
    QString symbol;
    QString accessibilityDescription;
    /// Called when somebody is there to show the picture, for each size that is on offer.
    std::function<StatusPicture(int side)> draw;
};

struct StatusMenuEntry
{
    /// Empty for a separator.
    QString title;
    /// The key that together with Control stands for the entry; empty for none.
    QString keyEquivalent;
    /// Has a check mark that is on or off.
    bool isCheckable = false;
    std::function<void()> action;
};

/// The program's place among the status items of the desktop. Where the desktop shows none, nothing happens,
/// and one that shows them later is told then.
class StatusItem
{
public:
    virtual ~StatusItem() = default;
    virtual void setImage(StatusImage image) = 0;
    /// What a plain click on the item does; the menu has the other click.
    virtual void setAction(std::function<void()> action) = 0;
    /// `willOpen` runs each time before the menu is shown.
    virtual void setMenu(std::vector<StatusMenuEntry> entries, std::function<void()> willOpen) = 0;
    /// The check mark of the entry at `index`, counted with the separators.
    virtual void setChecked(int index, bool isOn) = 0;
};

} // namespace brimlight
