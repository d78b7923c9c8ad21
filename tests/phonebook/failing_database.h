#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "link/text.h"
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

  /// From now on changes of this kind are refused: "insert on DATA", and so on for `update` and
  /// `delete`; with an empty text none is.
  void refuse(const std::string& change) {
    refused_ = upperCase(change);
    hasRefused_ = false;
  }
  bool hasRefused() const { return hasRefused_; }

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

  void check(const std::string& kind, const std::string& table) {
    if (upperCase(kind + " on " + table) != refused_) return;
    hasRefused_ = true;
    throw RuntimeFailure(3027, "Can't update. Database or object is read-only.");
  }

  class FailingSet : public RecordSet {
   public:
    FailingSet(FailingEngine& engine, std::string table, std::unique_ptr<RecordSet> set)
        : engine_(engine), table_(std::move(table)), set_(std::move(set)) {}

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
    void AddNew() override {
      counted().AddNew();
      change_ = "insert";
    }
    void Edit() override {
      counted().Edit();
      change_ = "update";
    }
    void setField(const std::string& column, const std::string& value) override {
      counted().setField(column, value);
    }
    void Update() override {
      engine_.check(change_, table_);
      counted().Update();
    }
    void Delete() override {
      engine_.check("delete", table_);
      counted().Delete();
    }

   private:
    RecordSet& counted() {
      engine_.count();
      return *set_;
    }

    FailingEngine& engine_;
    const std::string table_;
    std::string change_;
    std::unique_ptr<RecordSet> set_;
  };

  class FailingBook : public Database {
   public:
    FailingBook(FailingEngine& engine, std::shared_ptr<Database> book)
        : engine_(engine), book_(std::move(book)) {}

    void Execute(const std::string& statement) override {
      engine_.count();
      const std::string emptying = "delete from ";
      if (statement.starts_with(emptying)) {
        engine_.check("delete", statement.substr(emptying.size()));
      }
      book_->Execute(statement);
    }
    std::unique_ptr<RecordSet> openRecordSet(const std::string& source) override {
      engine_.count();
      return std::make_unique<FailingSet>(engine_, source, book_->openRecordSet(source));
    }

   private:
    FailingEngine& engine_;
    std::shared_ptr<Database> book_;
  };

  SqliteEngine engine_;
  int left_ = 0;
  int done_ = 0;
  std::string refused_;
  bool hasRefused_ = false;
  std::vector<std::string> criteria_;
};

}  // namespace gsm
