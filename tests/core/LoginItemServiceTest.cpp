#include "core/LoginItemService.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace brimlight::test {
namespace {

/// Counts what is asked of the system.
class CountingLoginItem : public FakeLoginItem
{
public:
    std::optional<QString> enable() override
    {
        ++enablings;
        return FakeLoginItem::enable();
    }
    std::optional<QString> disable() override
    {
        ++disablings;
        return FakeLoginItem::disable();
    }

    int enablings = 0;
    int disablings = 0;
};

class LoginItemServiceTest : public testing::Test
{
protected:
    CountingLoginItem item;
    RecordingLog log;
    LoginItemService service{item, log};
};

} // namespace

TEST(LoginItemService, BeginsWithWhatTheSystemSays)
{
    FakeLoginItem item;
    RecordingLog log;
    EXPECT_FALSE(LoginItemService(item, log).isEnabled());
    item.enabled = true;
    EXPECT_TRUE(LoginItemService(item, log).isEnabled());
}

TEST_F(LoginItemServiceTest, EnablesAndDisables)
{
    QSignalSpy changes(&service, &LoginItemService::isEnabledChanged);
    service.setEnabled(true);
    EXPECT_TRUE(service.isEnabled());
    EXPECT_TRUE(item.enabled);
    service.setEnabled(false);
    EXPECT_FALSE(service.isEnabled());
    EXPECT_FALSE(item.enabled);
    EXPECT_EQ(changes.size(), 2);
    EXPECT_TRUE(log.entries.empty());
}

TEST_F(LoginItemServiceTest, EnablingWhenAlreadyEnabledRegistersNothingAndLogsNothing)
{
    item.enabled = true;
    item.error = QStringLiteral("would fail");
    service.setEnabled(true);
    EXPECT_EQ(item.enablings, 0);
    EXPECT_TRUE(log.entries.empty());
    EXPECT_TRUE(service.isEnabled()) << "what the system says, not what was known";
}

TEST_F(LoginItemServiceTest, DisablingWhenAlreadyDisabledUnregistersAndCanLogAFailure)
{
    item.error = QStringLiteral("it is not there");
    service.setEnabled(false);
    EXPECT_EQ(item.disablings, 1);
    EXPECT_EQ(log.entries, (std::vector<RecordingLog::Entry>{
                               {LogLevel::error, QStringLiteral("LoginItem"),
                                QStringLiteral("Login item unregister failed: it is not there")}}));
    EXPECT_FALSE(service.isEnabled());
}

TEST_F(LoginItemServiceTest, AFailedRegistrationLeavesTheSwitchOff)
{
    item.error = QStringLiteral("no room");
    QSignalSpy changes(&service, &LoginItemService::isEnabledChanged);
    service.setEnabled(true);
    EXPECT_FALSE(service.isEnabled());
    EXPECT_EQ(changes.size(), 1) << "so that a switch moves back";
    EXPECT_EQ(log.messages(), QStringList{QStringLiteral("Login item register failed: no room")});
}

TEST_F(LoginItemServiceTest, IsOutOfDateUntilRefreshed)
{
    item.enabled = true;
    EXPECT_FALSE(service.isEnabled());
    service.refresh();
    EXPECT_TRUE(service.isEnabled());
}

} // namespace brimlight::test
