#pragma once

#include "platform/SavedFile.h"
#include "platform/UserDefaults.h"

#include <QJsonObject>

namespace brimlight {

/// User defaults in one JSON object, rewritten whole at every assignment. A value that cannot be written
/// holds for this run, and the next assignment tries again.
///
/// Booleans, numbers, texts and lists of texts are the JSON values of that name; data is an object with the
/// one key "data" and its bytes in Base64. A member of any other shape counts as absent and is carried along
/// unchanged until its key is assigned. A file that is no JSON object is kept aside before the first write.
class JsonUserDefaults : public UserDefaults
{
public:
    explicit JsonUserDefaults(SavedFile file);

    std::optional<Value> value(const QString &key) const override;
    void setValue(const QString &key, const Value &value) override;
    void remove(const QString &key) override;

private:
    void save();

    SavedFile m_file;
    QJsonObject m_values;
};

} // namespace brimlight
