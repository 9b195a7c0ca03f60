#pragma once

#include <QString>

#include <span>
#include <string_view>

namespace brimlight {

/// One row of the symbol table: the name that views use and the picture it stands for. Several names may
/// share one.
struct SymbolEntry
{
    std::string_view name;
    std::string_view picture;
};

/// Every symbol that a view can show. The build compiles the pictures named here into the resources.
std::span<const SymbolEntry> symbolTable();

/// The picture for a name; the one of "questionmark.circle" for a name that is not in the table.
std::string_view symbolPicture(QStringView name);

/// Where the resources hold a picture.
QString symbolResource(std::string_view picture);

} // namespace brimlight
