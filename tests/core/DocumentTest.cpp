#include "core/Document.h"

#include "fakes/DirectFileWriter.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace brimlight::test {
namespace {

/// A number that is written as so many strokes.
struct Tally
{
    qsizetype count = 0;
    bool operator==(const Tally &) const = default;
};

std::optional<QByteArray> encodeTally(const Tally &tally)
{
    return tally.count < 0 ? std::nullopt : std::optional(QByteArray(tally.count, '|'));
}

std::optional<Tally> decodeTally(const QByteArray &bytes)
{
    return bytes.count('|') == bytes.size() ? std::optional(Tally{bytes.size()}) : std::nullopt;
}

class Documents : public testing::Test
{
protected:
    using TallyDocument = Document<encodeTally, decodeTally>;

    TallyDocument document() { return TallyDocument(SavedFile(path, writer)); }
    void put(const QByteArray &bytes) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files); }

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tally.txt"));
    DirectFileWriter writer;
};

} // namespace

TEST_F(Documents, WhatIsSavedIsLoaded)
{
    EXPECT_TRUE(document().save({3}));
    EXPECT_EQ(document().load(), Tally{3});
}

TEST_F(Documents, NoFileIsAbsentAndIsNotMadeByLoading)
{
    EXPECT_FALSE(document().load());
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Documents, WhatDoesNotDecodeIsAbsentAndKeptAsideBeforeTheFirstSave)
{
    put("seven");
    auto tally = document();
    EXPECT_FALSE(tally.load());
    EXPECT_EQ(names(), QStringList{QStringLiteral("tally.txt")}) << "loading changes nothing";
    tally.save({1});
    EXPECT_EQ(names(), (QStringList{QStringLiteral("tally.txt"), QStringLiteral("tally.txt.unreadable-1")}));
}

TEST_F(Documents, AnEmptyContentIsAContent)
{
    put("");
    auto tally = document();
    EXPECT_EQ(tally.load(), Tally{0});
    tally.save({1});
    EXPECT_EQ(names().size(), 1);
}

TEST_F(Documents, WhatCannotBeEncodedIsNotSaved)
{
    document().save({2});
    EXPECT_FALSE(document().save({-1}));
    EXPECT_EQ(document().load(), Tally{2});
}

} // namespace brimlight::test
