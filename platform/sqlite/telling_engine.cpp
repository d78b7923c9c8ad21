#include "platform/sqlite/telling_engine.h"

#include "platform/sqlite/database_failure.h"
#include "platform/sqlite/file_name.h"

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

class TellingEngine::TellingRecordSet : public RecordSet {
 public:
  TellingRecordSet(TellingEngine& engine, fs::path file, std::unique_ptr<RecordSet> set)
      : engine_(engine), file_(std::move(file)), set_(std::move(set)) {}

  bool isBof() const override { return set_->isBof(); }
  bool isEof() const override { return set_->isEof(); }
  bool NoMatch() const override { return set_->NoMatch(); }
  void MoveFirst() override { set_->MoveFirst(); }
  void MoveNext() override { set_->MoveNext(); }
  void AddNew() override { set_->AddNew(); }
  void Edit() override { set_->Edit(); }
  void FindFirst(const std::string& criterion) override {
    engine_.telling(file_, [&] { set_->FindFirst(criterion); });
  }
  std::string field(const std::string& column) override {
    return engine_.telling(file_, [&] { return set_->field(column); });
  }
  void setField(const std::string& column, const std::string& value) override {
    engine_.telling(file_, [&] { set_->setField(column, value); });
  }
  void Update() override {
    engine_.telling(file_, [&] { set_->Update(); });
  }
  void Delete() override {
    engine_.telling(file_, [&] { set_->Delete(); });
  }

 private:
  TellingEngine& engine_;
  const fs::path file_;
  const std::unique_ptr<RecordSet> set_;
};

class TellingEngine::TellingDatabase : public Database {
 public:
  TellingDatabase(TellingEngine& engine, fs::path file, std::shared_ptr<Database> database)
      : engine_(engine), file_(std::move(file)), database_(std::move(database)) {}

  void Execute(const std::string& statement) override {
    engine_.telling(file_, [&] { database_->Execute(statement); });
  }
  std::unique_ptr<RecordSet> openRecordSet(const std::string& source) override {
    return std::make_unique<TellingRecordSet>(
        engine_, file_, engine_.telling(file_, [&] { return database_->openRecordSet(source); }));
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
  if (!isOfTheFile(failure) || !told_.insert(failure.number()).second) return;
  tell_("The phone book " + fs::absolute(ignoringCase(file)).string() +
        " can't be used: " + failure.description() +
        " What is wanted there is a phone book that can be written to: an empty one comes with "
        "the program, phonebook-import brings one over from an old machine.");
}

}  // namespace gsm
