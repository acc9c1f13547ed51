// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Result.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;
using Platform::Error;
using Platform::Result;

namespace {

Result<std::unique_ptr<int>> made(int number) {
    if (number < 0)
        return Error{Error::Kind::Damaged, u"below zero"_s};
    return std::make_unique<int>(number);
}

Result<> succeeded(bool yes) {
    return yes ? Result<>() : Error{Error::Kind::Busy, u"in use"_s};
}

} // namespace

TEST(Result, HoldsAValueThatCanBeMovedOut) {
    auto result = made(3);
    ASSERT_TRUE(result);
    EXPECT_FALSE(result.error());
    EXPECT_EQ(**result, 3);
    const std::unique_ptr<int> taken = *std::move(result);
    EXPECT_EQ(*taken, 3);
}

TEST(Result, HoldsAnError) {
    EXPECT_FALSE(made(-1));
    EXPECT_EQ(made(-1).error().kind, Error::Kind::Damaged);
    EXPECT_EQ(made(-1).valueOr(nullptr), nullptr);
    EXPECT_FALSE(succeeded(false));
    EXPECT_EQ(succeeded(false).error().text, u"in use"_s);
    EXPECT_TRUE(succeeded(true));
    EXPECT_FALSE(succeeded(true).error());
}

TEST(Result, AnErrorOfErrnoNamesTheFileAndKeepsTheNumberForTheLog) {
    const Error error = Error::ofErrno(ENOSPC, u"/a"_s);
    EXPECT_EQ(error.kind, Error::Kind::DiskFull);
    EXPECT_EQ(error.text, u"/a: No space left on device"_s);
    EXPECT_EQ(error.forLog(), u"/a: No space left on device [errno %1]"_s.arg(ENOSPC));
    EXPECT_EQ(Error::ofErrno(ENOENT).text, u"No such file or directory"_s);
    EXPECT_EQ(Error::ofErrno(EEXIST).kind, Error::Kind::Exists);
    EXPECT_TRUE(Error::ofErrno(0)) << "a failure without a number is a failure";
    EXPECT_EQ((Error{Error::Kind::Other, u"odd"_s}).forLog(), u"odd"_s);
}
