#pragma once
// EXPECT_RUNTIME_ERROR(number, statement): the statement raises that numbered error.

#include <gmock/gmock.h>

#include "runtime/error.h"

#define EXPECT_RUNTIME_ERROR(expected, statement)        \
  do {                                                   \
    try {                                                \
      statement;                                         \
      ADD_FAILURE() << #statement " raised nothing";     \
    } catch (const qm::runtime::RuntimeError& error) {   \
      EXPECT_EQ(error.number(), expected) << #statement; \
    }                                                    \
  } while (false)
