#include "theme/ThemeStore.h"

namespace brimlight {

ThemeStore::ThemeStore(QObject *parent)
    : QObject(parent)
{
}

} // namespace brimlight
