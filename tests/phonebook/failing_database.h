#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/database.h"
#include "platform/runtime_failure.h"
#include "platform/sqlite/sqlite_engine.h"

namespace gsm {

/// An engine of which one operation fails, as on a full disk, counted from the last `failAt`.
class FailingEngine : public DatabaseEngine {
 public:
  /// The operation with this number fails, counted from 1; with 0 none does.
  void failAt(int operation) {
    left_ = operation;
    done_ = 0;
  }
  /// How many operations there have been since the last `failAt`.
  int done() const { return done_; }
  bool hasFailed() const { return left_ < 0; }

  /// What was searched for since the last call.
  std::vector<std::string> takeCriteria() { return std::exchange(criteria_, {}); }

  std::shared_ptr<Database> OpenDatabase(const std::filesystem::path& file) override {
    count();
    return std::make_shared<FailingBook>(*this, engine_.OpenDatabase(file));
  }

 private:
  void count() {
    ++done_;
    if (left_ > 0 && --left_ == 0) {
      left_ = -1;
      throw RuntimeFailure(3049, "Disk full");
    }
  }

  class FailingSet : public RecordSet {
   public:
    FailingSet(FailingEngine& engine, std::unique_ptr<RecordSet> set)
        : engine_(engine), set_(std::move(set)) {}

    bool isBof() const override { return set_->isBof(); }
    bool isEof() const override { return set_->isEof(); }
    bool NoMatch() const override { return set_->NoMatch(); }
    void MoveFirst() override { counted().MoveFirst(); }
    void MoveNext() override { counted().MoveNext(); }
    void FindFirst(const std::string& criterion) override {
      engine_.criteria_.push_back(criterion);
      counted().FindFirst(criterion);
    }
    std::string field(const std::string& column) override { return counted().field(column); }
    void AddNew() override { counted().AddNew(); }
    void Edit() override { counted().Edit(); }
    void setField(const std::string& column, const std::string& value) override {
      counted().setField(column, value);
    }
    void Update() override { counted().Update(); }
    void Delete() override { counted().Delete(); }

   private:
    RecordSet& counted() {
      engine_.count();
      return *set_;
    }

    FailingEngine& engine_;
    std::unique_ptr<RecordSet> set_;
  };

  class FailingBook : public Database {
   public:
    FailingBook(FailingEngine& engine, std::shared_ptr<Database> book)
        : engine_(engine), book_(std::move(book)) {}

    void Execute(const std::string& statement) override {
      engine_.count();
      book_->Execute(statement);
    }
    std::unique_ptr<RecordSet> openRecordSet(const std::string& table) override {
      engine_.count();
      return std::make_unique<FailingSet>(engine_, book_->openRecordSet(table));
    }

   private:
    FailingEngine& engine_;
    std::shared_ptr<Database> book_;
  };

  SqliteEngine engine_;
  int left_ = 0;
  int done_ = 0;
  std::vector<std::string> criteria_;
};

}  // namespace gsm
