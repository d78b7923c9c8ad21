#include "platform/sqlite/telling_engine.h"

#include <utility>

namespace gsm {

namespace fs = std::filesystem;

template <class Work>
auto TellingEngine::telling(const fs::path& file, Work&& work) {
  try {
    return work();
  } catch (const RuntimeFailure& failure) {
    tellOf(file, failure);
    throw;
  }
}

class TellingEngine::TellingDatabase : public Database {
 public:
  TellingDatabase(TellingEngine& engine, fs::path file, std::shared_ptr<Database> database)
      : engine_(engine), file_(std::move(file)), database_(std::move(database)) {}

  void Execute(const std::string& statement) override {
    engine_.telling(file_, [&] { database_->Execute(statement); });
  }
  std::unique_ptr<RecordSet> openRecordSet(const std::string& table) override {
    return engine_.telling(file_, [&] { return database_->openRecordSet(table); });
  }

 private:
  TellingEngine& engine_;
  const fs::path file_;
  const std::shared_ptr<Database> database_;
};

std::shared_ptr<Database> TellingEngine::OpenDatabase(const fs::path& file) {
  return std::make_shared<TellingDatabase>(
      *this, file, telling(file, [&] { return engine_.OpenDatabase(file); }));
}

void TellingEngine::tellOf(const fs::path& file, const RuntimeFailure& failure) {
  if (std::exchange(told_, true)) return;
  tell_("The phone book " + fs::absolute(file).string() +
        " can't be used: " + failure.description() +
        " What is wanted there is a phone book that can be written to: an empty one comes with "
        "the program, phonebook-import brings one over from an old machine.");
}

}  // namespace gsm
