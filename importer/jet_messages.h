#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gsm {

// What the reading process reports to its parent: whole numbers of four bytes, and texts of such a
// length and as many bytes. Each message begins with the number of its kind.

/// The messages, with what follows the kind.
enum class JetMessage : std::uint32_t {
  table = 1,    // number of rows by the table's definition; the tables come in the order asked for
  row = 2,      // a text for each column asked for
  problem = 3,  // kind of problem, table, column; counted from 0
  end = 4,      // nothing: all has been told
};

/// What the reading process can find wrong.
enum class JetProblem : std::uint32_t { unreadable = 1, noTable = 2, noColumn = 3, noText = 4 };

/// Writes messages to a descriptor, in large pieces. Failing to write is a `RuntimeFailure`.
class JetMessageWriter {
 public:
  explicit JetMessageWriter(int descriptor) : descriptor_(descriptor) {}

  void number(std::uint32_t value);
  void text(std::string_view bytes);
  void flush();

 private:
  const int descriptor_;
  std::string pending_;
};

/// Reads messages and believes nothing: each part is nothing when there isn't enough left for it.
class JetMessageReader {
 public:
  explicit JetMessageReader(std::string_view bytes) : rest_(bytes) {}

  std::optional<std::uint32_t> number();
  std::optional<std::string> text();
  bool atEnd() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

}  // namespace gsm
