#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace brimlight {

class PopoverLayer;

/// What opens beside a control and stands in the popover layer above everything, whatever clips the control.
/// It stands below its anchor, or above where there is no room, and never outside of the layer. While it is
/// open it has the keyboard; Escape, a click elsewhere, another place taken by its anchor's view and the end
/// of either close it.
class PopoverItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool open READ isOpen WRITE setOpen NOTIFY openChanged)
    Q_PROPERTY(QQuickItem *anchorItem READ anchorItem WRITE setAnchorItem NOTIFY anchorItemChanged)
    Q_PROPERTY(QQuickItem *firstItem MEMBER m_firstItem NOTIFY firstItemChanged)
    Q_PROPERTY(bool alignsRight MEMBER m_alignsRight NOTIFY alignsRightChanged)
    Q_PROPERTY(double gap MEMBER m_gap NOTIFY gapChanged)
    /// Keys belong to it as long as it is open.
    Q_PROPERTY(bool takesKeyboard READ takesKeyboard CONSTANT)

public:
    explicit PopoverItem(QQuickItem *parent = nullptr);
    ~PopoverItem() override;

    bool isOpen() const;
    /// Opening without an anchor or a layer does nothing.
    void setOpen(bool open);
    /// The control that it belongs to: it stands beside that, and gives the focus back to it when it is
    /// closed by a key. The parent in the view at first.
    QQuickItem *anchorItem() const { return m_anchor; }
    void setAnchorItem(QQuickItem *item);
    bool takesKeyboard() const { return true; }
    /// At the point of the anchor instead of beside it: a menu for what was clicked there.
    Q_INVOKABLE void openAt(const QPointF &point);

    /// Where something of `size` stands beside `anchor` within `bounds`: `gap` below it, or above where that
    /// does not fit and there is more room.
    static QRectF placeBeside(const QRectF &anchor, const QSizeF &size, const QRectF &bounds, double gap,
                              bool alignsRight);

Q_SIGNALS:
    void openChanged();
    /// It has been opened by a key: its first control is the one to have the focus.
    void entered();
    void anchorItemChanged();
    void firstItemChanged();
    void alignsRightChanged();
    void gapChanged();

protected:
    void componentComplete() override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    friend class PopoverLayer;

    void openIn(PopoverLayer &layer);
    void close();
    void place();
    void takeFocus();
    bool holdsFocus() const;

    QPointer<PopoverLayer> m_layer;
    QPointer<QQuickItem> m_anchor;
    QPointer<QQuickItem> m_firstItem;
    QPointF m_point;
    bool m_isAtPoint = false;
    bool m_alignsRight = false;
    double m_gap = 4;
};

} // namespace brimlight
