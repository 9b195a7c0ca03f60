#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

#include <vector>

namespace brimlight {

/// The shapes of a symbol; empty only when the resources lack its picture.
std::vector<QPainterPath> outlineOfSymbol(const QString &name);

/// A symbol in the middle of a transparent square, `side` pixels wide, the symbol itself `symbolSide`.
QImage symbolImage(const QString &name, int side, int symbolSide, const QColor &color);

} // namespace brimlight
