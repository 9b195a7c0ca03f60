#pragma once

#include "core/Translations.h"

#include <QTranslator>

namespace brimlight {

class AppSettings;

/// Lets the views' qsTr() answer from the program's own table in the user's language. Installed as long as it
/// lives, for a screen without a camera housing at first.
class UiTranslator : public QTranslator
{
public:
    explicit UiTranslator(const AppSettings &settings);
    ~UiTranslator() override;

    Housing housing() const { return m_housing; }
    /// Whoever shows texts asks for them anew.
    void setHousing(Housing housing) { m_housing = housing; }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

private:
    const AppSettings &m_settings;
    Housing m_housing = Housing::absent;
};

} // namespace brimlight
