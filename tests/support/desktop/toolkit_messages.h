#pragma once

#include <gtest/gtest.h>

namespace gsm {

/// Makes every message of Qt's a failure of the test that runs: Qt complains of what it is used
/// wrongly for, and goes on.
void failOnToolkitMessages();

}  // namespace gsm
