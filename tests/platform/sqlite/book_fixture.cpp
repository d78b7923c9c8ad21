#include "tests/platform/sqlite/book_fixture.h"

#include <sys/wait.h>
#include <unistd.h>

#include "platform/runtime_failure.h"
#include "platform/sqlite/phone_book_file.h"

namespace gsm {

Failed failureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return {failure.number(), failure.description()};
  }
  return {};
}

bool holdsInChild(const std::function<bool()>& check) {
  const pid_t child = fork();
  if (child == 0) {
    bool held = false;
    try {
      held = check();
    } catch (...) {}
    _exit(held ? 0 : 1);
  }
  int status = -1;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

BookTest::BookTest() {
  createPhoneBook(file_);
  book_ = open();
}

void BookTest::add(const std::vector<std::string>& names) const {
  const auto set = entries();
  int index = 0;
  for (const std::string& name : names) {
    set->AddNew();
    set->setField("Index", std::to_string(++index));
    set->setField("Name", name);
    set->Update();
  }
}

std::vector<std::string> BookTest::rest(RecordSet& set) {
  std::vector<std::string> names;
  for (; !set.isEof(); set.MoveNext()) names.push_back(set.field("Name"));
  return names;
}

std::vector<std::string> BookTest::stored() const { return rest(*open()->openRecordSet("DATA")); }

}  // namespace gsm
