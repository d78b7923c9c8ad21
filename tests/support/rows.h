#pragma once

#include <gtest/gtest.h>

#include <string>

namespace gsm {

/// Names the rows of a table-driven test: each has a `name`.
struct RowName {
  template <class Row>
  std::string operator()(const ::testing::TestParamInfo<Row>& row) const {
    return row.param.name;
  }
};

}  // namespace gsm
