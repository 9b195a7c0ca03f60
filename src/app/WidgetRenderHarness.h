#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace brimlight::WidgetRenderHarness {

/// The folder that the command line asks to render into: the argument after "--render-widgets", or a folder
/// among the temporary files. Absent when it does not ask. `arguments` begins with the program.
std::optional<QString> requestedFolder(const QStringList &arguments);

/// Renders every widget at every size to a PNG file, when the command line asks for it, and answers the exit
/// status. Needs no display. To be called before any application object exists.
std::optional<int> runIfRequested(int argc, char **argv);

} // namespace brimlight::WidgetRenderHarness
