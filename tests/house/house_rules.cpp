#include "tests/house/house_rules.h"

#include <algorithm>
#include <array>
#include <regex>
#include <string_view>

namespace gsm::house {
namespace {

using Where = bool (*)(const SourceFile& file);

// The machine itself may be touched here; everywhere else it is reached through platform/.
bool mayTouchTheMachine(const SourceFile& file) {
  return file.isIn("platform/") || file.isIn("ui/") || file.isIn("simulator/host/") ||
         file.isIn("importer/") || file.isIn("tests/") || file.isIn("bench/") ||
         file.isIn("tour/") || file.path == "app/gsm_application.cpp";
}
bool isPure(const SourceFile& file) { return file.isCode() && !mayTouchTheMachine(file); }

constexpr std::array<std::string_view, 12> kWindowRooms = {
    "link/", "panel/",    "startup/",  "dispatch/", "modem/",    "phonebook/",
    "sms/",  "services/", "security/", "audio/",    "settings/", "module/"};

bool isOfAWindow(const SourceFile& file) {
  return file.isCode() && std::any_of(kWindowRooms.begin(), kWindowRooms.end(),
                                      [&](std::string_view room) { return file.isIn(room); });
}

std::string place(const SourceFile& file, std::size_t line) {
  return file.path + ":" + std::to_string(line + 1) + ": ";
}

// No line of the files `where` may match `pattern`.
std::function<Findings(const Tree&)> banned(const char* pattern, Where where, std::string words) {
  return [expression = std::regex(pattern, std::regex::optimize), where,
          words = std::move(words)](const Tree& tree) {
    Findings findings;
    for (const SourceFile& file : tree) {
      if (!where(file)) continue;
      for (std::size_t line = 0; line < file.lines.size(); ++line) {
        const std::string_view code = withoutComment(file.lines[line]);
        if (std::regex_search(code.begin(), code.end(), expression)) {
          findings.push_back(place(file, line) + words);
        }
      }
    }
    return findings;
  };
}

// Every include of the files `where` must pass `allowed`, which gets it with its quotes.
std::function<Findings(const Tree&)> includesOnly(bool (*allowed)(std::string_view), Where where,
                                                  std::string words) {
  return [allowed, where, words = std::move(words)](const Tree& tree) {
    Findings findings;
    for (const SourceFile& file : tree) {
      if (!where(file)) continue;
      for (std::size_t line = 0; line < file.lines.size(); ++line) {
        const std::string_view include = includeOf(file.lines[line]);
        if (include.empty() || allowed(include)) continue;
        findings.push_back(place(file, line) + std::string(include) + words);
      }
    }
    return findings;
  };
}

bool isStandard(std::string_view include) {
  return include.starts_with('<') && include.find_first_of("./") == std::string_view::npos &&
         !include.starts_with("<Q");
}

bool mayAWindowInclude(std::string_view include) {
  if (include.starts_with('<')) return isStandard(include);
  const std::string_view path = include.substr(1, include.size() - 2);
  if (path.starts_with("platform/")) return std::count(path.begin(), path.end(), '/') == 1;
  if (path.starts_with("controls/")) return true;
  return std::any_of(kWindowRooms.begin(), kWindowRooms.end(),
                     [path](std::string_view room) { return path.starts_with(room); });
}

bool mayTheSimulatorInclude(std::string_view include) {
  return include.starts_with('<') || include.starts_with("\"simulator/");
}

Findings longFiles(const Tree& tree) {
  constexpr std::size_t kMost = 400;
  Findings findings;
  for (const SourceFile& file : tree) {
    if (file.lines.size() <= kMost) continue;
    findings.push_back(place(file, kMost) + "a file has at most 400 lines: split it by subject");
  }
  return findings;
}

Findings unguardedHeaders(const Tree& tree) {
  Findings findings;
  for (const SourceFile& file : tree) {
    const auto& lines = file.lines;
    const bool guarded = std::find(lines.begin(), lines.end(), "#pragma once") != lines.end();
    if (file.isHeader() && !guarded) {
      findings.push_back(place(file, 0) + "a header without a guard: begin it with #pragma once");
    }
  }
  return findings;
}

// Whether a build list names the file, as it is written from the list's own folder.
bool names(const SourceFile& list, const SourceFile& file) {
  const std::string name = file.path.substr(list.folder().size());
  constexpr std::string_view kEnds = " \t\"()";
  for (const std::string& line : list.lines) {
    for (auto found = line.find(name); found != std::string::npos;
         found = line.find(name, found + 1)) {
      const auto isEnd = [&](std::size_t at) {
        return at >= line.size() || kEnds.find(line[at]) != std::string_view::npos;
      };
      if (isEnd(found == 0 ? line.size() : found - 1) && isEnd(found + name.size())) return true;
    }
  }
  return false;
}

Findings deadSources(const Tree& tree) {
  Findings findings;
  for (const SourceFile& file : tree) {
    if (!file.isSource()) continue;
    const bool named = std::any_of(tree.begin(), tree.end(), [&file](const SourceFile& list) {
      return list.isBuildList() && file.isIn(list.folder()) && names(list, file);
    });
    if (!named) {
      findings.push_back(place(file, 0) +
                         "nothing builds this file: name it in a CMakeLists.txt, " +
                         "or delete it");
    }
  }
  return findings;
}

Findings deadHeaders(const Tree& tree) {
  Findings findings;
  for (const SourceFile& file : tree) {
    if (!file.isHeader()) continue;
    const std::string include = "\"" + file.path + "\"";
    const bool included = std::any_of(tree.begin(), tree.end(), [&](const SourceFile& other) {
      return std::any_of(other.lines.begin(), other.lines.end(),
                         [&](const std::string& line) { return includeOf(line) == include; });
    });
    if (!included) {
      findings.push_back(place(file, 0) + "nothing includes this header by its path from the " +
                         "project's folder: include it so, or delete it");
    }
  }
  return findings;
}

Tree in(const char* path, std::initializer_list<const char*> texts) {
  Tree tree;
  for (const char* text : texts) tree.push_back(madeUp(path, text));
  return tree;
}

std::vector<Rule> makeRules() {
  return {
      {"Clocks",
       banned(
           R"(_clock::now|\b(gettimeofday|clock_gettime|localtime|localtime_r|gmtime|mktime)\s*\(|)"
           R"((^|[^\w.>])(std::|::)?time\s*\(\s*(nullptr|NULL|0|&))",
           isPure, "the machine's clock is banned here, use platform/clock.h"),
       in("modem/a.cpp",
          {"auto t = std::chrono::steady_clock::now();", "x = time(nullptr);", "x = std::time(0);",
           "gettimeofday(&now, nullptr);", "clock_gettime(CLOCK_MONOTONIC, &now);"}),
       in("modem/a.cpp", {"world.time().run(span);", "clock.localTime();", "// time(nullptr)",
                          "const Instant now = clock.now();"})},

      {"Sleeps",
       banned(R"(\b(sleep_for|sleep_until|usleep|nanosleep)\b|(^|[^\w.>])(std::|::)?sleep\s*\()",
              isPure, "sleeping is banned here, use Form1::Pause or EventLoop::pass"),
       in("link/a.cpp", {"std::this_thread::sleep_for(1s);", "usleep(10);", "  sleep(1);"}),
       in("link/a.cpp", {"int asleep(int);", "line.sleep(1);"})},

      {"Threads",
       banned(
           R"(#include\s*<(thread|mutex|shared_mutex|condition_variable|future|semaphore|barrier|)"
           R"(latch|stop_token|pthread\.h)>|\bpthread_|\bstd::(j?thread|async|(\w+_)?mutex)\b)",
           isPure, "threads are banned here, post to platform/event_loop.h"),
       in("driver/a.cpp",
          {"#include <thread>", "#include <mutex>", "pthread_create(&t, 0, f, 0);",
           "std::jthread t;", "std::recursive_mutex m;", "auto f = std::async(g);"}),
       in("driver/a.cpp", {"#include <functional>", "std::async_result r;"})},

      {"Qt",
       banned(R"(#include\s*<Q|\bQ[A-Z]+[a-z]\w*)", isPure,
              "Qt is banned here, use a control or an interface of platform/"),
       in("app/a.h", {"#include <QString>", "QWidget* widget;", "QSvgRenderer r;"}),
       in("app/a.h", {"int QUEUE;", "AQString();", "Query q;"})},

      {"Databases",
       banned(R"(#include\s*<sqlite|\bsqlite3_\w+|"\s*(SELECT|INSERT INTO|UPDATE|DELETE FROM)\b)",
              isPure, "SQL is banned here, use the database of platform/"),
       in("phonebook/a.cpp", {"#include <sqlite3.h>", "sqlite3_open(name, &db);",
                              "run(\"SELECT * FROM DATA\");", "run(\"DELETE FROM DATA\");"}),
       in("phonebook/a.cpp", {"label = \"Select\";", "database.deleteAll();"})},

      {"FileDescriptors",
       banned(R"(#include\s*<(unistd\.h|fcntl\.h|poll\.h|termios\.h|sys/\w+\.h)>)", isPure,
              "file descriptors are banned here, use platform/files.h or platform/serial_device.h"),
       in("link/a.cpp", {"#include <unistd.h>", "#include <fcntl.h>", "#include <poll.h>",
                         "#include <sys/ioctl.h>"}),
       in("link/a.cpp", {"#include <fstream>"})},

      {"WindowsIncludes",
       includesOnly(mayAWindowInclude, isOfAWindow,
                    " is banned in a window's room, use the headers of platform/ itself, controls/ "
                    "and the windows' rooms"),
       in("sms/a.cpp", {"#include \"platform/qt/port_access.h\"", "#include <QString>",
                        "#include \"platform/headless/virtual_time.h\"", "#include <sqlite3.h>",
                        "#include \"platform/sqlite/store.h\"", "#include \"driver/session.h\"",
                        "#include \"simulator/host/descriptor.h\"", "#include \"form8.h\"",
                        "#include \"simulator/modem.h\"", "#include \"app/headless_panel.h\""}),
       in("sms/a.cpp", {"#include \"controls/window.h\"", "#include \"panel/panel.h\"",
                        "#include \"link/text.h\"", "#include <vector>"})},

      {"SimulatorsIncludes",
       includesOnly(
           mayTheSimulatorInclude,
           [](const SourceFile& file) {
             return file.isIn("simulator/") && !file.isIn("simulator/host/") && file.isCode();
           },
           " is banned in the simulator, which knows nothing of the panel: write what it "
           "needs in simulator/"),
       in("simulator/a.cpp", {"#include \"link/text.h\"", "#include \"panel/panel.h\"",
                              "#include \"controls/window.h\""}),
       in("simulator/a.cpp", {"#include \"simulator/modem.h\"", "#include <string>",
                              "#include \"simulator/host/descriptor.h\""})},

      {"LongFiles",
       longFiles,
       {madeUp("a.h", std::string(401, '\n'))},
       {madeUp("a.h", std::string(400, '\n'))}},

      {"HeaderGuards",
       unguardedHeaders,
       in("a.h", {"#ifndef A_H", "// #pragma once"}),
       {madeUp("a.h", "#pragma once\n"), madeUp("a.cpp", "int a;")}},

      {"DeadSources",
       deadSources,
       {madeUp("sms/a.cpp", "int a;"), madeUp("ab.cpp", "int ab;")},
       {madeUp("b.cpp", "int b;"), madeUp("sms/c.cpp", "int c;"), madeUp("sms/d.cpp", "int d;")},
       {madeUp("CMakeLists.txt", "add_library(x b.cpp xsms/a.cpp\n  sms/d.cpp)"),
        madeUp("sms/CMakeLists.txt", "target_sources(x PRIVATE c.cpp)")}},

      {"DeadHeaders",
       deadHeaders,
       {madeUp("sms/a.h", "int a;"), madeUp("d.h", "int d;")},
       {madeUp("sms/b.h", "int b;")},
       {madeUp("c.cpp", "#include \"a.h\"\n#include \"sms/b.h\"\n// #include \"d.h\"")}},
  };
}

}  // namespace

const std::vector<Rule>& rules() {
  static const std::vector<Rule> made = makeRules();
  return made;
}

}  // namespace gsm::house
