#include "core/UiTranslator.h"

#include "core/AppSettings.h"

#include <QCoreApplication>

namespace brimlight {

UiTranslator::UiTranslator(const AppSettings &settings)
    : m_settings(settings)
{
    QCoreApplication::installTranslator(this);
}

UiTranslator::~UiTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QString UiTranslator::translate(const char *, const char *sourceText, const char *, int) const
{
    return brimlight::translate(QString::fromUtf8(sourceText), m_settings.language(), m_housing);
}

} // namespace brimlight
