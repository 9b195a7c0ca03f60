#include "theme/SymbolImage.h"

#include "theme/SymbolOutline.h"
#include "theme/SymbolTable.h"

#include <QFile>
#include <QPainter>

namespace brimlight {

std::vector<QPainterPath> outlineOfSymbol(const QString &name)
{
    QFile file(symbolResource(symbolPicture(name)));
    return file.open(QIODevice::ReadOnly) ? symbolOutline(file.readAll()) : std::vector<QPainterPath>();
}

QImage symbolImage(const QString &name, int side, int symbolSide, const QColor &color)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int margin = (side - symbolSide) / 2;
    painter.translate(margin, margin);
    painter.scale(symbolSide / symbolGrid, symbolSide / symbolGrid);
    for (const QPainterPath &shape : outlineOfSymbol(name))
        painter.fillPath(shape, color);
    return image;
}

} // namespace brimlight
