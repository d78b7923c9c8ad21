#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>

#include "platform/database.h"
#include "platform/runtime_failure.h"

namespace gsm {

/// An engine that reports what goes wrong with a file, of each kind of failure once in its life,
/// and goes on failing as before. Handlers end silently on such a failure, and somebody should
/// learn of it. What a handler asks for in vain it keeps to itself.
class TellingEngine : public DatabaseEngine {
 public:
  /// `tell` is given what to show: the file's full name, what is wrong and what to do. The engine
  /// outlives the databases that it opens and their record sets.
  TellingEngine(DatabaseEngine& engine, std::function<void(const std::string&)> tell)
      : engine_(engine), tell_(std::move(tell)) {}

  std::shared_ptr<Database> OpenDatabase(const std::filesystem::path& file) override;

 private:
  class TellingDatabase;
  class TellingRecordSet;

  /// What `work` gives for `file`; reports its failure before it passes it on.
  template <class Work>
  auto telling(const std::filesystem::path& file, Work&& work);
  void tellOf(const std::filesystem::path& file, const RuntimeFailure& failure);

  DatabaseEngine& engine_;
  std::function<void(const std::string&)> tell_;
  std::set<int> told_;  // numbers of failures
};

}  // namespace gsm
