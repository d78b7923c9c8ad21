#include "platform/secret_blots.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"

namespace gsm {
namespace {

// Whatever stands behind the secret is blotted out with it, since a password may hold commas.
constexpr std::array kCommands = {
    SecretCommand{"+CPIN=", 0},     // PIN, or PUK and new PIN
    SecretCommand{"+CPIN2=", 0},    // the same of the second code
    SecretCommand{"+CLCK=", 2},     // facility, mode, password, class
    SecretCommand{"+CPWD=", 1},     // facility, old password, new password
    SecretCommand{"+VTS=", 0},      // tones in a call: the code of a mailbox, key by key
    SecretCommand{"ATD*", 1, '*'},  // codes of services: *33*password#, **04*PIN*new*new#
    SecretCommand{"ATD#", 1, '*'},
    SecretCommand{"*", 1, '*', true},  // the same as the modem tells what it dials once more
    SecretCommand{"#", 1, '*', true},
};

constexpr std::size_t kLongestName = 7;
static_assert(std::ranges::all_of(kCommands, [](const SecretCommand& command) {
  return command.name.size() <= kLongestName;
}));

constexpr std::size_t kShortestRemembered = 3;  // shorter ones turn up everywhere
constexpr std::size_t kLongestRemembered = 64;
constexpr std::size_t kMostRemembered = 16;

std::vector<Blot> blotsOf(const std::vector<bool>& mask) {
  std::vector<Blot> blots;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    if (!mask[i]) continue;
    if (i == 0 || !mask[i - 1]) blots.push_back({i, 0});
    ++blots.back().size;
  }
  return blots;
}

}  // namespace

std::span<const SecretCommand> secretCommands() { return kCommands; }

void SecretReader::beginLine() {
  tail_.clear();
  command_ = nullptr;
}

bool SecretReader::take(char byte) {
  if (byte == '\r' || byte == '\n') {
    beginLine();
    return false;
  }
  if (command_ == nullptr) {
    if (byte == ' ') return false;
    if (tail_.size() == kLongestName) tail_.erase(0, 1);
    tail_ += capital(byte);
    const auto found = std::ranges::find_if(kCommands, [this](const SecretCommand& each) {
      return each.beginsLine ? tail_ == each.name : tail_.ends_with(each.name);
    });
    if (found != kCommands.end()) {
      command_ = &*found;
      plainFields_ = command_->plainFields;
      fieldIsEmpty_ = true;
    }
    return false;
  }
  if (plainFields_ == 0) return true;
  const bool separates = byte == command_->separator;
  // A service's code begins with one asterisk or two.
  const bool belongsToName = fieldIsEmpty_ && command_->separator == '*';
  if (separates && !belongsToName) --plainFields_;
  fieldIsEmpty_ = separates;
  return false;
}

void SecretBlots::beginLines() {
  for (Direction* direction : {&sent_, &received_}) {
    direction->reader.beginLine();
    direction->before.clear();
  }
  learning_.clear();
}

std::vector<Blot> SecretBlots::sent(std::string_view bytes) {
  Mask mask(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    mask[i] = sent_.reader.take(bytes[i]);
    if (mask[i]) {
      if (learning_.size() < kLongestRemembered) learning_ += bytes[i];
    } else if (!learning_.empty()) {
      learn(learning_);
      learning_.clear();
    }
  }
  markRemembered(sent_, bytes, mask);
  return blotsOf(mask);
}

std::vector<Blot> SecretBlots::received(std::string_view bytes) {
  Mask mask(bytes.size());
  for (std::size_t i = 0; i < bytes.size(); ++i) mask[i] = received_.reader.take(bytes[i]);
  markRemembered(received_, bytes, mask);
  return blotsOf(mask);
}

// The fields by themselves and all of them in one: a password may hold what separates fields.
void SecretBlots::learn(std::string_view fields) {
  constexpr std::string_view kSeparators = ",*#;\"";
  remember(fields);
  for (std::size_t begin = 0; begin < fields.size();) {
    const auto end = std::min(fields.find_first_of(kSeparators, begin), fields.size());
    remember(fields.substr(begin, end - begin));
    begin = end + 1;
  }
}

void SecretBlots::remember(std::string_view secret) {
  if (secret.size() < kShortestRemembered) return;
  std::erase_if(remembered_, [secret](const Secret& each) { return each.text == secret; });
  if (remembered_.size() == kMostRemembered) remembered_.erase(remembered_.begin());
  remembered_.push_back({std::string(secret), clock_.now() + kMemory});
}

void SecretBlots::markRemembered(Direction& direction, std::string_view bytes, Mask& mask) {
  const Instant now = clock_.now();
  std::erase_if(remembered_, [now](const Secret& each) { return each.until < now; });

  const std::string text = direction.before + std::string(bytes);
  const std::size_t known = direction.before.size();
  const auto mark = [&mask, known](std::size_t first, std::size_t size) {
    for (std::size_t i = std::max(first, known); i < first + size; ++i) mask[i - known] = true;
  };
  for (const auto& [secret, until] : remembered_) {
    for (auto at = text.find(secret); at != std::string::npos; at = text.find(secret, at + 1)) {
      mark(at, secret.size());
    }
    // The rest of it may come with the next delivery.
    for (std::size_t size = std::min(secret.size() - 1, text.size()); size > 0; --size) {
      if (!text.ends_with(secret.substr(0, size))) continue;
      mark(text.size() - size, size);
      break;
    }
  }
  direction.before = text.substr(text.size() - std::min(text.size(), kLongestRemembered - 1));
}

}  // namespace gsm
