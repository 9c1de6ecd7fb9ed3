#include "fresh_process.h"

#include <gtest/gtest.h>
#include <ox/ox_functions.h>

TEST(DateCounter, FreshProcessGivesOneThenTwo) {
    fresh_process::run([] {
        EXPECT_EQ(ox_get_date(), 0u);
        EXPECT_EQ(ox_get_new_date(), 1u);
        EXPECT_EQ(ox_get_new_date(), 2u);
        EXPECT_EQ(ox_get_date(), 2u);
    });
}

TEST(DateCounter, DatesAreStrictlyIncreasing) {
    const unsigned int before = ox_get_new_date();
    const unsigned int after = ox_get_new_date();
    EXPECT_LT(before, after);
    EXPECT_EQ(ox_get_date(), after);
}

TEST(DateCounter, QualifiedAndGlobalNamesAreOneFunction) {
    EXPECT_EQ(&ox::ox_get_date, &::ox_get_date);
    EXPECT_EQ(&ox::ox_get_new_date, &::ox_get_new_date);
    using namespace ox;
    EXPECT_EQ(&ox_get_date, &::ox_get_date);
}
