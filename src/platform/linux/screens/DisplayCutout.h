#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

namespace brimlight {

/// What the panel data of a machine says of its display, in the panel's own pixels.
struct DisplayPanelData
{
    double width = 0;
    double height = 0;
    /// The bounds of the cutout that touches the top edge, if there is one.
    std::optional<QRectF> topCutout;
};

/// Reads the JSON of one display panel as phone shells install it: "x-res", "y-res" and "cutouts", each with
/// an SVG "path". Absent when the bytes are no such document.
std::optional<DisplayPanelData> parseDisplayPanel(const QByteArray &json);

/// The bounds of the points of an SVG path, control points included; absent when it does not parse.
std::optional<QRectF> svgPathBounds(const QString &path);

/// The machine's names from most to least specific: the NUL-separated "compatible" of its device tree.
QStringList parseCompatible(const QByteArray &bytes);

/// The data of this machine's own panel, absent on most machines.
std::optional<DisplayPanelData> thisMachinesPanel();

/// The same with every place to look in given: `compatibleFile` and the folders that hold "NAME.json" files.
std::optional<DisplayPanelData> findPanel(const QString &compatibleFile, const QStringList &folders);

} // namespace brimlight
