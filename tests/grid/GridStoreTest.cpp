#include "grid/GridStore.h"

#include "fakes/DirectFileWriter.h"
#include "grid/GridLayoutCodec.h"
#include "grid/WidgetRegistry.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <limits>
#include <optional>

namespace brimlight::test {
namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();

WidgetDefinition kind(const QString &name, WidgetSize size)
{
    return {.metadata = {.kind = name, .allowedSizes = {size}, .defaultSize = size}};
}

WidgetInstance tile(WidgetSize size, qint64 col, qint64 row, qint64 page = 0, qint64 order = 0)
{
    return {
        .kind = QStringLiteral("small"), .size = size, .order = order, .page = page, .col = col, .row = row};
}

} // namespace

/// A store on a real file, with one kind for each size, named like it.
class GridStoreTest : public testing::Test
{
protected:
    static std::vector<WidgetDefinition> kinds()
    {
        std::vector<WidgetDefinition> definitions;
        for (const WidgetSize size : allWidgetSizes)
            definitions.push_back(kind(rawValue(size), size));
        return definitions;
    }

    void put(const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void start() { store.emplace(SavedFile(path, files), widgets); }
    void startWith(const QList<WidgetInstance> &instances, qint64 pageCount = 1)
    {
        put(encodeLayout({.instances = instances, .pageCount = pageCount}));
        start();
    }
    /// A page without a free cell.
    void startFull()
    {
        QList<WidgetInstance> instances;
        for (int row = 0; row < gridRows; ++row) {
            for (int col = 0; col < gridColumns; ++col)
                instances.append(tile(WidgetSize::small, col, row));
        }
        startWith(instances);
    }

    QByteArray written() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
    }
    /// What a store of the next start would hold.
    GridLayout stored() const { return decodeLayout(written()).value_or(GridLayout{}); }
    QStringList names() const { return QDir(dir.path()).entryList(QDir::Files); }
    /// Removes the file, so that only a later write brings it back.
    void forgetFile() { QFile::remove(path); }
    bool hasFile() const { return QFile::exists(path); }

    const QList<WidgetInstance> &instances() const { return store->layout().instances; }
    GridCell corner(qsizetype index) const { return {instances()[index].col, instances()[index].row}; }

    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("grid.json"));
    const WidgetRegistry widgets{kinds()};
    DirectFileWriter files;
    std::optional<GridStore> store;
};

using GridStoreLoad = GridStoreTest;

TEST_F(GridStoreLoad, TheFirstRunShowsTheDefaultLayoutAndWritesNothing)
{
    start();
    EXPECT_EQ(instances().size(), 4);
    EXPECT_EQ(store->layout().pageCount, 1);
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(GridStoreLoad, AValidFileIsLoadedAndNotWritten)
{
    const GridLayout layout{.instances = {tile(WidgetSize::large, 1, 2, 1, 7)}, .pageCount = 3};
    const QByteArray bytes = encodeLayout(layout) + '\n';
    put(bytes);
    start();
    EXPECT_EQ(store->layout(), layout);
    EXPECT_EQ(written(), bytes);
}

TEST_F(GridStoreLoad, ARepairedFileIsWrittenAtOnce)
{
    startWith({tile(WidgetSize::small, 2, 2), tile(WidgetSize::small, 2, 2)});
    EXPECT_EQ(corner(1), (GridCell{0, 0}));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreLoad, ALayoutWithAnUnplaceableTileWritesItsFileAtEachStart)
{
    startFull();
    GridLayout layout = store->layout();
    layout.instances.append(tile(WidgetSize::small, -1, -1));
    put(encodeLayout(layout) + '\n');
    start();
    EXPECT_EQ(written(), encodeLayout(layout));
}

TEST_F(GridStoreLoad, AnUndecodableFileStaysUntilTheFirstChangeAndIsThenKeptAside)
{
    put("garbage");
    start();
    EXPECT_EQ(instances().size(), 4);
    EXPECT_EQ(written(), "garbage");
    store->addPage();
    EXPECT_EQ(stored(), store->layout());
    store->addPage();
    EXPECT_EQ(names(), (QStringList{QStringLiteral("grid.json"), QStringLiteral("grid.json.unreadable-1")}));
    QFile aside(path + QStringLiteral(".unreadable-1"));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), "garbage");
}

TEST_F(GridStoreLoad, BadFilesGiveTheDefaultLayout)
{
    const QByteArray deep = QByteArray(100'000, '[');
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("{"), QByteArray("[]"), QByteArray(R"({"instances":7})"), deep,
          QByteArray(R"({"instances":[],"pageCount":1e300})"),
          encodeLayout(GridLayout::defaultLayout()).chopped(9),
          QByteArray(encodeLayout(GridLayout::defaultLayout())).replace("small", "medium")}) {
        put(bytes);
        start();
        EXPECT_EQ(instances().size(), 4) << bytes.first(std::min<qsizetype>(bytes.size(), 60)).constData();
        EXPECT_EQ(written(), bytes);
    }
}

TEST_F(GridStoreLoad, AFolderInPlaceOfTheFileGivesTheDefaultLayout)
{
    ASSERT_TRUE(QDir().mkpath(path));
    start();
    EXPECT_EQ(instances().size(), 4);
    store->addPage();
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreLoad, AFileThatCannotBeWrittenLeavesTheChangeInMemory)
{
    GridStore readOnly({QStringLiteral("/proc/brimlight/grid.json"), files}, widgets);
    EXPECT_EQ(readOnly.addPage(), 1);
    readOnly.add(QStringLiteral("huge"), 1);
    EXPECT_EQ(readOnly.layout().pageCount, 2);
    EXPECT_EQ(readOnly.layout().instances.size(), 5);
}

TEST_F(GridStoreLoad, AFailedWriteIsMadeGoodByTheNextChange)
{
    start();
    ASSERT_TRUE(QDir().mkpath(path));
    store->addPage();
    EXPECT_FALSE(QFileInfo(path).isFile());
    ASSERT_TRUE(QDir().rmdir(path));
    store->addPage();
    EXPECT_EQ(stored().pageCount, 3);
}

TEST_F(GridStoreLoad, AMissingFolderIsMadeByTheFirstChange)
{
    GridStore nested({dir.filePath(QStringLiteral("a/b/grid.json")), files}, widgets);
    nested.addPage();
    EXPECT_TRUE(QFile::exists(dir.filePath(QStringLiteral("a/b/grid.json"))));
}

TEST_F(GridStoreLoad, AnAstronomicalNumberOfPagesIsNoWork)
{
    startWith({tile(WidgetSize::small, 0, 0, largest)}, 3);
    EXPECT_EQ(store->layout().pageCount, largest);
    EXPECT_EQ(store->displayRows(largest), 3);
    EXPECT_EQ(store->addPage(), largest - 1);
    EXPECT_EQ(store->layout().pageCount, largest);
    store->add(QStringLiteral("small"), largest);
    EXPECT_EQ(corner(1), (GridCell{1, 0}));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreLoad, ThousandsOfInstancesLoad)
{
    QList<WidgetInstance> many;
    for (int n = 0; n < 5000; ++n)
        many.append(tile(WidgetSize::large, n % 5, n % 7, n % 11 - 3, n));
    startWith(many);
    EXPECT_EQ(instances().size(), 5000);
    EXPECT_EQ(store->layout().pageCount, 8);
    EXPECT_EQ(stored(), store->layout());
}

using GridStoreQueries = GridStoreTest;

TEST_F(GridStoreQueries, DisplayRowsLeaveAnEmptyRowAndStayBetweenThreeAndEight)
{
    const auto rowsWith = [this](const QList<WidgetInstance> &list) {
        startWith(list);
        return store->displayRows(0);
    };
    EXPECT_EQ(rowsWith({}), 3);
    EXPECT_EQ(rowsWith({tile(WidgetSize::tall, 0, 0)}), 3);
    EXPECT_EQ(rowsWith({tile(WidgetSize::large, 0, 1)}), 4);
    EXPECT_EQ(rowsWith({tile(WidgetSize::small, 0, 6)}), 8);
    EXPECT_EQ(rowsWith({tile(WidgetSize::small, 0, 7)}), 8);
    EXPECT_EQ(rowsWith({tile(WidgetSize::tall, 0, 6)}), 8);
    EXPECT_EQ(rowsWith({tile(WidgetSize::huge, 0, 5)}), 8);
}

TEST_F(GridStoreQueries, DisplayRowsCountOnlyPlacedTilesOfThePage)
{
    start();
    store->setLayout({.instances = {tile(WidgetSize::small, -1, 6), tile(WidgetSize::small, 0, 6, 1),
                                    tile(WidgetSize::small, 0, largest, 2)}});
    EXPECT_EQ(store->displayRows(0), 3);
    EXPECT_EQ(store->displayRows(1), 8);
    EXPECT_EQ(store->displayRows(2), 8);
}

TEST_F(GridStoreQueries, InstancesOfAPageComeByRowThenColumnUnplacedOnesFirst)
{
    start();
    const WidgetInstance a = tile(WidgetSize::small, 3, 1);
    const WidgetInstance b = tile(WidgetSize::small, 0, 1);
    const WidgetInstance c = tile(WidgetSize::small, 5, 0);
    const WidgetInstance unplaced = tile(WidgetSize::small, -1, -1);
    const WidgetInstance alike = tile(WidgetSize::small, -1, -1);
    store->setLayout({.instances = {a, b, tile(WidgetSize::small, 0, 0, 1), unplaced, c, alike}});
    EXPECT_EQ(store->instances(0), (QList{unplaced, alike, c, b, a}));
    EXPECT_TRUE(store->instances(2).isEmpty());
}

TEST_F(GridStoreQueries, ANegativePageIsRepairedAndShownByNoPage)
{
    startWith({tile(WidgetSize::small, 9, 9, -1)});
    EXPECT_EQ(corner(0), (GridCell{0, 0}));
    EXPECT_EQ(store->layout().pageCount, 1);
    EXPECT_TRUE(store->instances(0).isEmpty());
}

TEST_F(GridStoreQueries, TheSizeIsThatOfTheFirstInstanceWithTheId)
{
    const WidgetInstance first = tile(WidgetSize::wide, 0, 0);
    WidgetInstance second = tile(WidgetSize::tall, 2, 0);
    second.id = first.id;
    startWith({first, second});
    EXPECT_EQ(store->size(first.id), WidgetSize::wide);
    EXPECT_FALSE(store->size(QUuid::createUuid()));
    EXPECT_FALSE(store->instance(QUuid()));
}

TEST_F(GridStoreQueries, TheExcludedTileDoesNotBlockItsCells)
{
    startWith({tile(WidgetSize::huge, 0, 0)});
    EXPECT_EQ(store->firstFreeSlot(WidgetSize::small, 0), (GridCell{3, 0}));
    EXPECT_EQ(store->firstFreeSlot(WidgetSize::small, 0, instances()[0].id), (GridCell{0, 0}));
    EXPECT_EQ(store->firstFreeSlot(WidgetSize::small, 1), (GridCell{0, 0}));
}

TEST_F(GridStoreQueries, AnIdOfZeroesBlocksLikeAnyOther)
{
    WidgetInstance zero = tile(WidgetSize::huge, 0, 0);
    zero.id = QUuid();
    startWith({zero});
    EXPECT_EQ(store->firstFreeSlot(WidgetSize::small, 0), (GridCell{3, 0}));
}

TEST_F(GridStoreQueries, CanPlaceWantsTheExactCell)
{
    startWith({tile(WidgetSize::large, 0, 0), tile(WidgetSize::small, 5, 7)});
    const QUuid id = instances()[0].id;
    EXPECT_TRUE(store->canPlace(id, {0, 0}));
    EXPECT_TRUE(store->canPlace(id, {1, 1}));
    EXPECT_TRUE(store->canPlace(id, {4, 5}));
    for (const GridCell &cell : {GridCell{5, 0}, GridCell{0, 7}, GridCell{-1, 0}, GridCell{0, -1},
                                 GridCell{4, 6}, GridCell{largest, largest}})
        EXPECT_FALSE(store->canPlace(id, cell)) << cell.col << ' ' << cell.row;
    EXPECT_FALSE(store->canPlace(QUuid::createUuid(), {0, 0}));
}

using GridStoreShift = GridStoreTest;

TEST_F(GridStoreShift, GoesToTheNextPlaceInTheDirection)
{
    startWith({tile(WidgetSize::small, 0, 0), tile(WidgetSize::wide, 1, 0), tile(WidgetSize::small, 5, 7)});
    const QUuid id = instances()[0].id;
    EXPECT_TRUE(store->shift(id, 1, 0));
    EXPECT_EQ(corner(0), (GridCell{3, 0})) << "past the tile that stands in the way";
    EXPECT_TRUE(store->shift(id, 0, 1));
    EXPECT_EQ(corner(0), (GridCell{3, 1}));
    EXPECT_TRUE(store->shift(id, -1, 0));
    EXPECT_EQ(corner(0), (GridCell{2, 1}));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreShift, StaysWhereThereIsNoRoom)
{
    startWith({tile(WidgetSize::wide, 4, 0), tile(WidgetSize::wide, 4, 1)});
    const GridLayout before = store->layout();
    EXPECT_FALSE(store->shift(instances()[0].id, 1, 0));
    EXPECT_FALSE(store->shift(instances()[0].id, 0, -1));
    EXPECT_FALSE(store->shift(QUuid::createUuid(), 0, 1));
    WidgetInstance outside = instances()[1];
    outside.col = largest;
    store->update(outside);
    EXPECT_FALSE(store->shift(outside.id, 1, 0));
    EXPECT_EQ(instances()[0], before.instances[0]);
}

using GridStoreAdd = GridStoreTest;

TEST_F(GridStoreAdd, HugeTilesStandSideBySideThenBelow)
{
    startWith({tile(WidgetSize::huge, 0, 0)});
    store->add(QStringLiteral("huge"), 0);
    store->add(QStringLiteral("huge"), 0);
    EXPECT_EQ(corner(1), (GridCell{3, 0}));
    EXPECT_EQ(corner(2), (GridCell{0, 3}));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreAdd, TheNewInstanceHasTheKindsDefaultSizeAndNoSettings)
{
    startWith({tile(WidgetSize::small, 0, 0, 3, 41)}, 5);
    store->add(QStringLiteral("banner"), 1);
    const WidgetInstance &added = instances().last();
    EXPECT_FALSE(added.id.isNull());
    EXPECT_EQ(added, (WidgetInstance{.id = added.id,
                                     .kind = QStringLiteral("banner"),
                                     .size = WidgetSize::banner,
                                     .order = 42,
                                     .page = 1,
                                     .col = 0,
                                     .row = 0}));
    EXPECT_EQ(store->layout().pageCount, 5);
}

TEST_F(GridStoreAdd, TheOrderIsOneMoreThanAnyInUse)
{
    startWith({});
    store->add(QStringLiteral("small"), 0);
    EXPECT_EQ(instances().last().order, 0);
    startWith({tile(WidgetSize::small, 0, 0, 0, -5)});
    store->add(QStringLiteral("small"), 0);
    EXPECT_EQ(instances().last().order, -4);
    startWith({tile(WidgetSize::small, 0, 0, 0, largest)});
    store->add(QStringLiteral("small"), 0);
    EXPECT_EQ(instances().last().order, largest);
}

TEST_F(GridStoreAdd, AFullPageLeavesLayoutAndFileUntouched)
{
    startFull();
    const GridLayout before = store->layout();
    forgetFile();
    store->add(QStringLiteral("small"), 0);
    EXPECT_EQ(store->layout(), before);
    EXPECT_FALSE(hasFile());
}

TEST_F(GridStoreAdd, AnUnknownKindLeavesEverythingUntouched)
{
    startWith({});
    forgetFile();
    store->add(QStringLiteral("Small"), 4);
    EXPECT_EQ(store->layout(), GridLayout{});
    EXPECT_FALSE(hasFile());
}

TEST_F(GridStoreAdd, APageBeyondTheLastRaisesThePageCount)
{
    startWith({}, 2);
    store->add(QStringLiteral("small"), 4);
    EXPECT_EQ(store->layout().pageCount, 5);
    EXPECT_EQ(stored().pageCount, 5);
}

TEST_F(GridStoreAdd, ANewPageIsTheLastOne)
{
    startWith({}, 2);
    EXPECT_EQ(store->addPage(), 2);
    EXPECT_EQ(stored().pageCount, 3);
}

using GridStorePlace = GridStoreTest;

TEST_F(GridStorePlace, TheRequestedCellIsLimitedToWhereTheTileFits)
{
    struct Row
    {
        WidgetSize size;
        GridCell wanted;
        GridCell got;
    };
    constexpr qint64 smallest = std::numeric_limits<qint64>::min();
    for (const Row &row : {Row{WidgetSize::small, {-3, 99}, {0, 7}}, Row{WidgetSize::large, {5, 3}, {4, 3}},
                           Row{WidgetSize::huge, {largest, largest}, {3, 5}},
                           Row{WidgetSize::huge, {smallest, smallest}, {0, 0}}}) {
        startWith({tile(row.size, 1, 1)});
        EXPECT_TRUE(store->place(instances()[0].id, row.wanted.col, row.wanted.row));
        EXPECT_EQ(corner(0), row.got);
        EXPECT_EQ(stored(), store->layout());
    }
}

TEST_F(GridStorePlace, OntoItsOwnCellSucceedsAndSaves)
{
    startWith({tile(WidgetSize::large, 1, 1)});
    forgetFile();
    EXPECT_TRUE(store->place(instances()[0].id, 1, 1));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStorePlace, AnOccupiedTargetChangesNothing)
{
    startWith({tile(WidgetSize::large, 0, 0), tile(WidgetSize::small, 3, 0)});
    const GridLayout before = store->layout();
    forgetFile();
    EXPECT_FALSE(store->place(instances()[0].id, 2, 0));
    EXPECT_EQ(store->layout(), before);
    EXPECT_FALSE(hasFile());
}

TEST_F(GridStorePlace, PageAndOrderStayAndOtherPagesAreNoObstacle)
{
    startWith({tile(WidgetSize::small, 0, 0, 1, 6), tile(WidgetSize::huge, 2, 2, 0)}, 2);
    EXPECT_TRUE(store->place(instances()[0].id, 3, 3));
    EXPECT_EQ(instances()[0].page, 1);
    EXPECT_EQ(instances()[0].order, 6);
}

TEST_F(GridStorePlace, AnUnknownIdIsFalse)
{
    startWith({});
    forgetFile();
    EXPECT_FALSE(store->place(QUuid::createUuid(), 0, 0));
    EXPECT_FALSE(hasFile());
}

TEST_F(GridStorePlace, OfTwoInstancesWithOneIdTheFirstMoves)
{
    const WidgetInstance first = tile(WidgetSize::small, 0, 0);
    WidgetInstance second = tile(WidgetSize::small, 1, 0);
    second.id = first.id;
    startWith({first, second});
    EXPECT_TRUE(store->place(first.id, 4, 4));
    EXPECT_EQ(corner(0), (GridCell{4, 4}));
    EXPECT_EQ(corner(1), (GridCell{1, 0}));
}

using GridStoreResize = GridStoreTest;

TEST_F(GridStoreResize, ATileAtTheEdgeSlidesBackIntoTheGrid)
{
    startWith({tile(WidgetSize::wide, 4, 7)});
    store->setSize(instances()[0].id, WidgetSize::banner);
    EXPECT_EQ(corner(0), (GridCell{3, 7}));
    store->setSize(instances()[0].id, WidgetSize::huge);
    EXPECT_EQ(corner(0), (GridCell{3, 5}));
    EXPECT_EQ(instances()[0].size, WidgetSize::huge);
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreResize, APositionOverlappedOnlyByItselfIsTakenInPlace)
{
    startWith({tile(WidgetSize::large, 2, 2)});
    store->setSize(instances()[0].id, WidgetSize::huge);
    EXPECT_EQ(corner(0), (GridCell{2, 2}));
    EXPECT_EQ(instances()[0].size, WidgetSize::huge);
}

TEST_F(GridStoreResize, ABlockedTileJumpsToTheFirstFreeSlot)
{
    startWith({tile(WidgetSize::small, 0, 4), tile(WidgetSize::small, 1, 4)});
    store->setSize(instances()[0].id, WidgetSize::large);
    EXPECT_EQ(corner(0), (GridCell{0, 0}));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreResize, WithoutASlotNothingChangesAndNothingIsSaved)
{
    startFull();
    const GridLayout before = store->layout();
    forgetFile();
    store->setSize(instances()[0].id, WidgetSize::wide);
    EXPECT_EQ(store->layout(), before);
    EXPECT_FALSE(hasFile());
}

TEST_F(GridStoreResize, AnUnplacedTileGetsACorner)
{
    startFull();
    GridLayout layout = store->layout();
    layout.instances.removeFirst();
    layout.instances.append(tile(WidgetSize::huge, -1, -1));
    store->setLayout(layout);
    store->setSize(layout.instances.last().id, WidgetSize::small);
    EXPECT_EQ(corner(layout.instances.size() - 1), (GridCell{0, 0}));
}

TEST_F(GridStoreResize, AnUnknownIdChangesNothing)
{
    startWith({tile(WidgetSize::small, 0, 0)});
    forgetFile();
    store->setSize(QUuid::createUuid(), WidgetSize::huge);
    EXPECT_EQ(instances()[0].size, WidgetSize::small);
    EXPECT_FALSE(hasFile());
}

using GridStoreRemove = GridStoreTest;

TEST_F(GridStoreRemove, EveryInstanceWithTheIdGoesAndTheOthersStay)
{
    const WidgetInstance first = tile(WidgetSize::small, 0, 0);
    const WidgetInstance other = tile(WidgetSize::small, 1, 0);
    WidgetInstance twin = tile(WidgetSize::small, 2, 0, 1);
    twin.id = first.id;
    startWith({first, other, twin}, 2);
    store->remove(first.id);
    EXPECT_EQ(store->layout(), (GridLayout{.instances = {other}, .pageCount = 2}));
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreRemove, AnUnknownIdSavesAllTheSame)
{
    startWith({tile(WidgetSize::small, 0, 0)});
    forgetFile();
    store->remove(QUuid::createUuid());
    EXPECT_EQ(stored(), store->layout());
}

using GridStoreUpdate = GridStoreTest;

TEST_F(GridStoreUpdate, TheWholeValueIsReplaced)
{
    startWith({tile(WidgetSize::small, 0, 0), tile(WidgetSize::small, 1, 0)});
    WidgetInstance changed = instances()[1];
    changed.settings = {{QStringLiteral("format"), QStringLiteral("24")}};
    store->update(changed);
    EXPECT_EQ(instances()[1], changed);
    EXPECT_EQ(stored(), store->layout());
}

TEST_F(GridStoreUpdate, AnUnknownIdChangesNothing)
{
    startWith({});
    forgetFile();
    store->update(tile(WidgetSize::small, 0, 0));
    EXPECT_TRUE(instances().isEmpty());
    EXPECT_FALSE(hasFile());
}

TEST_F(GridStoreTest, EveryChangeNotifiesOnceAndARefusedOneNever)
{
    startWith({tile(WidgetSize::small, 0, 0), tile(WidgetSize::small, 1, 0)});
    int notified = 0;
    QObject::connect(&*store, &GridStore::layoutChanged, [&] { ++notified; });
    const WidgetInstance first = instances()[0];
    store->add(QStringLiteral("none"), 0);
    EXPECT_FALSE(store->place(first.id, 1, 0));
    EXPECT_EQ(notified, 0);
    store->add(QStringLiteral("small"), 0);
    store->addPage();
    EXPECT_TRUE(store->place(first.id, 0, 0));
    store->setSize(first.id, WidgetSize::small);
    store->update(first);
    store->remove(first.id);
    store->setLayout(store->layout());
    EXPECT_EQ(notified, 7);
}

} // namespace brimlight::test
