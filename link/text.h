#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace gsm {

// Text arithmetic. A text is a row of bytes of Windows-1252, one to a character; positions count
// from 1, and 0 means "not there".

/// 64 bits: a text that nothing claims may grow beyond what 32 can count.
using Position = std::int64_t;

/// Where `key` first stands in `text`, exact in case; 0 when it doesn't.
Position position(std::string_view key, std::string_view text);

/// Up to `length` characters of `text` from `start` on; empty when `start` lies after the end.
/// `invalidArgument` when `start` is below 1 or `length` is negative.
std::string slice(std::string_view text, Position start, Position length);

/// `text` from its beginning up to but not including the first `end`. `invalidArgument` when `end`
/// isn't there, since what lies before position 0 has a negative length.
std::string before(std::string_view end, std::string_view text);

/// `text` after the first `end`, or all of it when `end` isn't there.
std::string behind(std::string_view end, std::string_view text);

/// Takes the field before the first comma off `reply` and returns it. `reply` keeps what lies
/// after the comma, as many characters as "OK" stands at in it. `invalidArgument` when there is no
/// comma.
std::string takeReplyField(std::string& reply);

/// `text` without blanks at both ends. Other white space stays.
std::string trim(std::string_view text);

/// `text` with its letters as capitals, accented ones too.
std::string upperCase(std::string_view text);

/// The number that `text` spells: white space around it (line ends included), a sign, a point and
/// an exponent are allowed. `typeMismatch` when it spells none.
double number(std::string_view text);

/// The same as a whole number, a half rounded to the even neighbour. `overflow` when it doesn't fit
/// 16 bits with sign.
int wholeNumber(std::string_view text);

/// The same without the bounds of 16 bits, for counts and positions that are plain numbers.
/// `overflow` above fifteen digits.
std::int64_t wholeCount(std::string_view text);

/// Counts the occurrences of `find` in `text`, overlapping ones included. `overflow` when there are
/// more than 32 bits with sign can count.
int getCountOf(std::string_view text, std::string_view find);

/// Removes the first `find` from `text` and returns what `text` then is. When `find` isn't there,
/// `text` stays as it is and the result is empty.
std::string StrDel(std::string& text, std::string_view find);

}  // namespace gsm
