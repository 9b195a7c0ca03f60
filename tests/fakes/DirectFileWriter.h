#pragma once

#include "platform/FileWriter.h"
#include "platform/Log.h"
#include "platform/WholeFile.h"

namespace brimlight::test {

/// Everything is in its file when `write` returns.
class DirectFileWriter : public FileWriter
{
public:
    explicit DirectFileWriter(Log *log = nullptr)
        : m_log(log)
    {
    }

    void write(const std::shared_ptr<WholeFile> &file, const QByteArray &content,
               const FailureWords &words) override
    {
        if (!file->write(content, [](int) {}) && m_log)
            m_log->write(LogLevel::error, words.category, words.message + file->errorString());
    }

private:
    Log *m_log;
};

} // namespace brimlight::test
