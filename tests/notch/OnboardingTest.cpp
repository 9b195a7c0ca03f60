#include "notch/OnboardingSteps.h"

#include "core/Translations.h"

#include <gtest/gtest.h>

namespace brimlight::test {

TEST(Onboarding, TheFirstStepHasNoBackAndTheLastNoSkip)
{
    OnboardingSteps steps;
    EXPECT_FALSE(steps.hasBack());
    EXPECT_FALSE(steps.isLast());
    steps.next();
    EXPECT_TRUE(steps.hasBack());
    steps.next();
    steps.next();
    EXPECT_TRUE(steps.isLast());
    steps.next();
    EXPECT_EQ(steps.current(), OnboardingSteps::count() - 1) << "there is nothing beyond";
    steps.back();
    EXPECT_FALSE(steps.isLast());
}

TEST(Onboarding, EveryTextIsTranslated)
{
    OnboardingSteps steps;
    for (int step = 0; step < OnboardingSteps::count(); ++step) {
        for (const QString &text : {steps.title(), steps.description()})
            EXPECT_NE(translate(text, AppLanguage::german), text) << qPrintable(text);
        EXPECT_FALSE(steps.icon().isEmpty());
        steps.next();
    }
}

} // namespace brimlight::test
