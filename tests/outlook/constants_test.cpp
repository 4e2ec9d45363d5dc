#include "outlook/constants.h"
#include "outlook/proxy.h"

#include <gtest/gtest.h>

namespace rf::outlook {

TEST(OutlookConstants, HaveTheNumbersOfTheObjectModel)
{
    EXPECT_EQ(code(DefaultFolder::Inbox), 6);
    EXPECT_EQ(code(DefaultFolder::Calendar), 9);
    EXPECT_EQ(code(ItemType::Mail), 0);
    EXPECT_EQ(code(ItemType::Appointment), 1);
    EXPECT_EQ(code(ItemType::Post), 6);
    EXPECT_EQ(code(UserPropertyType::Text), 1);
    EXPECT_EQ(code(UserPropertyType::Number), 3);
    EXPECT_EQ(code(UserPropertyType::DateTime), 5);
    EXPECT_EQ(code(UserPropertyType::YesNo), 6);
    EXPECT_EQ(code(CloseMode::Save), 0);
    EXPECT_EQ(code(CloseMode::Discard), 1);
    EXPECT_EQ(code(MeetingStatus::NonMeeting), 0);
    EXPECT_EQ(code(MeetingStatus::Meeting), 1);
    EXPECT_EQ(code(FolderDisplayMode::Normal), 0);
}

TEST(OutlookConstants, HaveTheNumbersOfTheCommandBars)
{
    EXPECT_EQ(code(BarPosition::Top), 1);
    EXPECT_EQ(code(ControlType::Button), 1);
    EXPECT_EQ(code(ControlType::ComboBox), 4);
    EXPECT_EQ(code(ButtonStyle::IconAndCaption), 3);
    EXPECT_EQ(code(ComboStyle::Label), 1);
}

TEST(OutlookConstants, HaveTheNumbersOfTheAssistant)
{
    EXPECT_EQ(code(AlertButtons::Ok), 0);
    EXPECT_EQ(code(AlertButtons::OkCancel), 1);
    EXPECT_EQ(code(AlertButtons::YesNo), 4);
    EXPECT_EQ(code(AlertIcon::Critical), 1);
    EXPECT_EQ(code(AlertIcon::Query), 2);
    EXPECT_EQ(code(AlertIcon::Warning), 3);
    EXPECT_EQ(code(AlertIcon::Information), 4);
    EXPECT_EQ(code(AlertDefault::First), 0);
    EXPECT_EQ(code(AlertCancel::Default), -1);
}

} // namespace rf::outlook
