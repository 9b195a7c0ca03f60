#pragma once

#include <QTranslator>

namespace brimlight {

class AppSettings;

/// Lets the views' qsTr() answer from the program's own table in the user's language. Installed as long as it
/// lives.
class UiTranslator : public QTranslator
{
public:
    explicit UiTranslator(const AppSettings &settings);
    ~UiTranslator() override;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

private:
    const AppSettings &m_settings;
};

} // namespace brimlight
