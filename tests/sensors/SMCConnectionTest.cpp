#include "sensors/SMCConnection.h"
#include "fakes/SensorFakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

class SMCConnectionTest : public testing::Test
{
protected:
    FakeSmc smc;
    std::unique_ptr<SMCConnection> connection = SMCConnection::open(smc);
};

} // namespace

TEST_F(SMCConnectionTest, FoldsTheFirstCharacterIntoTheHighestByte)
{
    EXPECT_EQ(SMCConnection::keyCode(QStringLiteral("TC0P")), 0x54433050U);
    EXPECT_EQ(SMCConnection::keyCode(QStringLiteral("#KEY")), 0x234B4559U);
    EXPECT_EQ(SMCConnection::keyCode(QStringLiteral("é")), 0xC3A9U) << "UTF-8";
    EXPECT_EQ(SMCConnection::keyCode(QString()), 0U);
}

TEST_F(SMCConnectionTest, AnInfoRequestIsZeroButForKeyAndCommand)
{
    connection->readKeyInfo(SMCConnection::keyCode(QStringLiteral("TC0P")));
    SmcRecord expected{};
    expected[0] = 0x50;
    expected[1] = 0x30;
    expected[2] = 0x43;
    expected[3] = 0x54;
    expected[42] = 9;
    ASSERT_EQ(smc.requests.size(), 1U);
    EXPECT_EQ(smc.requests.front(), expected);
}

TEST_F(SMCConnectionTest, AValueRequestSendsTheInfoBack)
{
    smc.recordCelsius("TC0P", 42.5F);
    const auto value = connection->readValue(QStringLiteral("TC0P"));
    ASSERT_TRUE(value);
    EXPECT_EQ(value->info, (SMCConnection::KeyInfo{4, 0x666C7420, 0x84}));
    EXPECT_EQ(value->data, QByteArray::fromHex("00002a42"));
    const SmcRecord &request = smc.requests.back();
    EXPECT_EQ(request[28], 4);
    EXPECT_EQ(request[32], 0x20) << "the type's last character comes first";
    EXPECT_EQ(request[35], 0x66);
    EXPECT_EQ(request[36], 0x84);
    EXPECT_EQ(request[42], 5);
}

TEST_F(SMCConnectionTest, AnInfoIsAskedForOnce)
{
    smc.recordCelsius("TC0P", 42.5F);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(connection->readValue(QStringLiteral("TC0P")));
    EXPECT_EQ(smc.requests.size(), 4U);
}

TEST_F(SMCConnectionTest, AFailedInfoIsAskedForAgain)
{
    EXPECT_FALSE(connection->readValue(QStringLiteral("TC0P")));
    smc.recordCelsius("TC0P", 42.5F);
    EXPECT_TRUE(connection->readValue(QStringLiteral("TC0P")));
}

TEST_F(SMCConnectionTest, AResultIsAFailureWhateverElseTheRecordHolds)
{
    smc.recordCelsius("TC0P", 42.5F);
    smc.valueReply("TC0P").record[40] = 1;
    EXPECT_FALSE(connection->readValue(QStringLiteral("TC0P")));
    smc.valueReply("TC0P").record[40] = 0;
    smc.valueReply("TC0P").record[41] = 0xff;
    EXPECT_TRUE(connection->readValue(QStringLiteral("TC0P"))) << "the status is not looked at";
}

TEST_F(SMCConnectionTest, AShortResponseIsAFailureEvenWithAReturnCodeOfZero)
{
    smc.recordCelsius("TC0P", 42.5F);
    smc.valueReply("TC0P").size = 47;
    EXPECT_FALSE(connection->readValue(QStringLiteral("TC0P")));
    smc.valueReply("TC0P").size = 48;
    EXPECT_TRUE(connection->readValue(QStringLiteral("TC0P")));
}

TEST_F(SMCConnectionTest, AReturnCodeIsAFailure)
{
    smc.recordCelsius("TC0P", 42.5F);
    smc.valueReply("TC0P").returnCode = 1;
    EXPECT_FALSE(connection->readValue(QStringLiteral("TC0P")));
}

TEST_F(SMCConnectionTest, AValueHasAtMostThirtyTwoBytes)
{
    smc.recordValue("Long", "text", 200, 0, std::vector<uint8_t>(32, 'x'));
    smc.recordValue("None", "text", 0, 0, {1, 2, 3});
    EXPECT_EQ(connection->readValue(QStringLiteral("Long"))->data, QByteArray(32, 'x'));
    EXPECT_EQ(connection->readValue(QStringLiteral("None"))->data, QByteArray());
}

TEST_F(SMCConnectionTest, TheKeyCountIsBigEndian)
{
    smc.recordValue("#KEY", "ui32", 4, 0, {0, 0, 0x0b, 0xb8});
    EXPECT_EQ(connection->keyCount(), 3000U);
    smc.valueReply("#KEY").returnCode = 1;
    EXPECT_FALSE(connection->keyCount());
}

TEST_F(SMCConnectionTest, AKeyAtAnIndexReadsBackwardsOnTheWire)
{
    smc.add("Tp01", 40);
    smc.add("TC0P", 40);
    EXPECT_EQ(connection->keyAt(1), QStringLiteral("TC0P"));
    EXPECT_EQ(smc.requests.back()[44], 1);
    EXPECT_FALSE(connection->keyAt(2));
}

TEST_F(SMCConnectionTest, AKeyThatIsNotAsciiIsAbsent)
{
    smc.add("Tp\xe9\x31", 40);
    EXPECT_FALSE(connection->keyAt(0));
}

TEST_F(SMCConnectionTest, IsClosedWhenDestroyed)
{
    EXPECT_TRUE(smc.closed.empty());
    connection.reset();
    EXPECT_EQ(smc.closed, std::vector{FakeSmc::connection});
}

TEST_F(SMCConnectionTest, IsNothingWithoutAController)
{
    smc.isThere = false;
    EXPECT_FALSE(SMCConnection::open(smc));
    connection.reset();
    EXPECT_EQ(smc.closed.size(), 1U) << "what was not opened is not closed";
}

} // namespace brimlight::test
