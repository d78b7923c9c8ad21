// Requests that can't be understood: each is answered with a reason and changes nothing.

#include "audio/form6.h"
#include "panel/form1.h"
#include "tests/driver/driver_fixture.h"

namespace gsm::driver {
namespace {

class MalformedRequests : public DriverTest {
 protected:
  void SetUp() override {
    startWithOpenPort();
    before_ = everything();
  }
  // Whatever a request refused may have queued would show in the next second.
  void TearDown() override {
    EXPECT_EQ(everything(), before_);
    run(3);
    Json after = Json::parse(everything());
    Json before = Json::parse(before_);
    after["at"] = before["at"] = 0;
    EXPECT_EQ(after.dump(), before.dump());
    EXPECT_EQ(sent(), Texts());
    EXPECT_EQ(shown(), Texts());
  }

  void expectRefused(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) EXPECT_TRUE(isRefused(line));
  }

 private:
  std::string everything() {
    Json all = state();
    all["transcript"] = transcript();
    all["typed"] = get("Form1.Text2.Text");
    all["windowState"] = get("Form1.WindowState");
    return all.dump();
  }
  std::string before_;
};

TEST_F(MalformedRequests, WhatIsNoJson) {
  expectRefused({"",
                 " ",
                 "\t",
                 "op",
                 "{",
                 "}",
                 "{\"op\"",
                 "{\"op\":}",
                 "{'op':'run'}",
                 R"({"op":"run","seconds":1)",
                 R"({"op":"run","seconds":1}})",
                 R"({"op":"run","seconds":1} {"op":"run","seconds":1})",
                 R"({"op":"run","seconds":1,})",
                 R"({"op":"run" "seconds":1})",
                 "// comment",
                 R"({op:"run",seconds:1})",
                 R"({"op":"run","seconds":01})",
                 R"({"op":"run","seconds":+1})",
                 R"({"op":"run","seconds":.5})",
                 R"({"op":"run","seconds":1e})",
                 R"({"op":"receive","text":"\x"})",
                 R"({"op":"receive","text":"\ud800"})",
                 "{\"op\":\"receive\",\"text\":\"a\nb\"}",
                 std::string("\0", 1),
                 std::string("{\"op\":\"run\",\0\"seconds\":1}", 24)});
}

TEST_F(MalformedRequests, WhatIsNoObject) {
  expectRefused({"null", "true", "1", "1.5", "\"run\"", "[]", R"(["run"])", R"([{"op":"run"}])"});
}

TEST_F(MalformedRequests, WhatNamesNoRequest) {
  expectRefused({"{}", R"({"op":null})", R"({"op":1})", R"({"op":["run"]})", R"({"op":""})",
                 R"({"op":"Run","seconds":1})", R"({"op":"run ","seconds":1})", R"({"op":"quit"})",
                 R"({"seconds":1})", R"({"OP":"run","seconds":1})"});
}

TEST_F(MalformedRequests, AMissingField) {
  expectRefused({R"({"op":"run"})",
                 R"({"op":"receive"})",
                 R"({"op":"event"})",
                 R"({"op":"modem"})",
                 R"({"op":"ports"})",
                 R"({"op":"click"})",
                 R"({"op":"type","control":"Form1.Text2"})",
                 R"({"op":"type","text":"x"})",
                 R"({"op":"erase"})",
                 R"({"op":"select","control":"Form1.List1"})",
                 R"({"op":"select","index":0})",
                 R"({"op":"tab"})",
                 R"({"op":"move","control":"Form6.Slider1"})",
                 R"({"op":"close"})",
                 R"({"op":"minimise"})",
                 R"({"op":"restore"})",
                 R"({"op":"maximise"})",
                 R"({"op":"boxes"})",
                 R"({"op":"get"})",
                 R"({"op":"reply"})",
                 R"({"op":"reply","write":"AT\r"})",
                 R"({"op":"reply","text":"x"})",
                 R"({"op":"otherwise"})",
                 R"({"op":"reply","chunks":[[0.1,"x"]]})",
                 R"({"op":"rows"})",
                 R"({"op":"store","rows":[]})",
                 R"({"op":"store","table":"DATA"})"});
}

TEST_F(MalformedRequests, AFieldOfTheWrongKind) {
  expectRefused({
      R"({"op":"run","seconds":"1"})",
      R"({"op":"run","seconds":null})",
      R"({"op":"run","seconds":true})",
      R"({"op":"run","seconds":[1]})",
      R"({"op":"settle","limit":"1"})",
      R"({"op":"settle","limit":null})",
      R"({"op":"receive","text":1})",
      R"({"op":"receive","text":null})",
      R"({"op":"receive","text":["x"]})",
      R"({"op":"receive","text":"x","after":"1"})",
      R"({"op":"receive","text":"x","after":null})",
      R"({"op":"event","value":"3"})",
      R"({"op":"event","value":3.5})",
      R"({"op":"event","value":null})",
      R"({"op":"modem","port":"3"})",
      R"({"op":"modem","port":3.5})",
      R"({"op":"modem","port":3,"speed":"9600"})",
      R"({"op":"modem","port":4,"speed":null})",
      R"({"op":"modem","port":null,"speed":0})",
      R"({"op":"modem","port":null,"speed":-9600})",
      R"({"op":"ports","ports":null})",
      R"({"op":"ports","ports":{"number":3}})",
      R"({"op":"ports","ports":[3]})",
      R"({"op":"ports","ports":[{}]})",
      R"({"op":"ports","ports":[{"number":"3"}]})",
      R"({"op":"ports","ports":[{"number":3,"held":1}]})",
      R"({"op":"ports","ports":[{"number":3,"fails":true}]})",
      R"({"op":"click","control":8})",
      R"({"op":"click","control":["Form1.Label8"]})",
      R"({"op":"click","control":"Form1.Label8","after":"1"})",
      R"({"op":"click","control":"Form1.Label8","index":"0"})",
      R"({"op":"type","control":"Form1.Text2","text":1})",
      R"({"op":"select","control":"Form1.List1","index":"0"})",
      R"({"op":"select","control":"Form1.List1","index":0.5})",
      R"({"op":"move","control":"Form6.Slider1","value":1.5})",
      R"({"op":"close","window":1})",
      R"({"op":"boxes","answer":true})",
      R"({"op":"boxes","answer":"AUTO"})",
      R"({"op":"boxes","answer":""})",
      R"({"op":"get","property":1})",
      R"({"op":"get","property":["Form1.Caption"]})",
      R"({"op":"rows","table":1})",
      R"({"op":"rows","table":"DATA","folder":1})",
      R"({"op":"store","table":"DATA","rows":{}})",
      R"({"op":"store","table":"DATA","rows":["1"]})",
  });
}

TEST_F(MalformedRequests, AReplyThatIsNone) {
  expectRefused({
      R"({"op":"reply","write":"A","starting":"A","text":"x"})",
      R"({"op":"reply","write":"A","text":"x","texts":["x"]})",
      R"({"op":"reply","write":"A","text":"x","chunks":[[0,"x"]]})",
      R"({"op":"reply","write":1,"text":"x"})",
      R"({"op":"reply","write":"A","text":1})",
      R"({"op":"reply","write":"A","texts":[]})",
      R"({"op":"reply","write":"A","texts":"x"})",
      R"({"op":"reply","write":"A","texts":["x",1]})",
      R"({"op":"reply","write":"A","chunks":[]})",
      R"({"op":"reply","write":"A","chunks":[0.1,"x"]})",
      R"({"op":"reply","write":"A","chunks":[[0.1]]})",
      R"({"op":"reply","write":"A","chunks":[["x",0.1]]})",
      R"({"op":"reply","write":"A","chunks":[[-1,"x"]]})",
      R"({"op":"reply","write":"A","chunks":[[0.1,"x","y"]]})",
      R"({"op":"reply","write":"A","text":"x","echo":0})",
      R"({"op":"reply","write":"A","text":"x","after":-0.1})",
      R"({"op":"otherwise","text":1})",
      R"({"op":"otherwise","text":"x","echo":"no"})",
      R"({"op":"otherwise","text":"x","after":-1})",
  });
}

TEST_F(MalformedRequests, ANumberOutOfItsRange) {
  expectRefused({
      R"({"op":"run","seconds":-1})",
      R"({"op":"run","seconds":-0.001})",
      R"({"op":"run","seconds":1e10})",
      R"({"op":"run","seconds":1e400})",
      R"({"op":"run","seconds":-1e400})",
      R"({"op":"run","seconds":99999999999999999999999})",
      R"({"op":"run","seconds":NaN})",
      R"({"op":"run","seconds":nan})",
      R"({"op":"run","seconds":Infinity})",
      R"({"op":"settle","limit":-1})",
      R"({"op":"settle","limit":1e19})",
      R"({"op":"receive","text":"x","after":-1})",
      R"({"op":"receive","text":"x","after":1e300})",
      R"({"op":"click","control":"Form1.Label8","after":-1})",
      R"({"op":"event","value":2147483648})",
      R"({"op":"event","value":-2147483649})",
      R"({"op":"event","value":9223372036854775808})",
      R"({"op":"event","value":18446744073709551616})",
      R"({"op":"event","value":1e3000})",
      R"({"op":"modem","port":4294967299})",
      R"({"op":"select","control":"Form1.List1","index":4294967296})",
      R"({"op":"move","control":"Form6.Slider1","value":99999999999})",
      R"({"op":"ports","ports":[{"number":4294967299}]})",
  });
}

TEST_F(MalformedRequests, WhatDoesNotExist) {
  expectRefused({
      R"({"op":"click","control":"Form1.Label99"})",
      R"({"op":"click","control":"Form99.Label8"})",
      R"({"op":"click","control":"Label8"})",
      R"({"op":"click","control":""})",
      R"({"op":"click","control":"."})",
      R"({"op":"click","control":"Form1."})",
      R"({"op":"click","control":"Form1.Label8.Caption"})",
      R"({"op":"close","window":"Form99"})",
      R"({"op":"close","window":""})",
      R"({"op":"minimise","window":"form1"})",
      R"({"op":"restore","window":"Form1.Label8"})",
      R"({"op":"get","property":"Form1.Label8.Font"})",
      "{\"op\":\"get\",\"property\":\"Form1.Caption\\u0000\"}",
  });
}

TEST_F(MalformedRequests, TextThatIsNoUtf8) {
  expectRefused({
      "{\"op\":\"receive\",\"text\":\"\xFF\"}",
      "{\"op\":\"receive\",\"text\":\"\xC3\"}",
      "{\"op\":\"receive\",\"text\":\"\xED\xA0\x80\"}",
      "{\"op\":\"\xE4\"}",
      "{\"\xE4\":1,\"op\":\"forget\"}",
      "\xFE\xFF{\"op\":\"forget\"}",
      "\x80\x81\x82",
  });
}

TEST_F(MalformedRequests, AnAnswerIsAlwaysOneLineOfUtf8) {
  for (const char* line : {"{\"op\":\"\\u00e4\\n\\u0000\"}", "{\"op\":\"\xE4\n\"}",
                           "{\"op\":\"get\",\"property\":\"\\u00e4\\n.x\"}"}) {
    const std::string answer = answerTo(line);
    EXPECT_EQ(answer.find('\n'), std::string::npos);
    EXPECT_TRUE(Json::accept(answer)) << answer;
  }
}

TEST_F(MalformedRequests, DeepNesting) {
  constexpr std::size_t kDeep = 200'000;
  const std::string open(kDeep, '[');
  const std::string close(kDeep, ']');
  std::string objects;
  for (std::size_t level = 0; level < kDeep; ++level) objects += R"({"op":)";
  expectRefused({open, open + close, R"({"op":)" + open + close + "}",
                 R"({"op":"run","seconds":)" + open + close + "}", objects,
                 objects + "1" + std::string(kDeep, '}')});
}

TEST_F(MalformedRequests, ALongLineOfNonsense) {
  expectRefused({std::string(1 << 20, 'x'), std::string(1 << 20, '\0'),
                 R"({"op":")" + std::string(1 << 20, 'x') + "\"}",
                 R"({"op":"get","property":")" + std::string(1 << 20, '.') + "\"}",
                 R"({"op":"close","window":")" + std::string(1 << 20, 'x') + "\"}",
                 R"({"op":"run","seconds":)" + std::string(1 << 20, '9') + "}"});
}

class MalformedReplies : public DriverTest {};

TEST_F(MalformedReplies, BecomeNoRule) {
  startWithOpenPort();
  EXPECT_TRUE(isRefused(R"({"op":"reply","write":"AT\r","text":"x","echo":0})"));
  EXPECT_TRUE(isRefused(R"({"op":"reply","write":"AT\r","texts":["x",1]})"));
  EXPECT_TRUE(isRefused(R"({"op":"otherwise","text":"x","echo":0})"));
  click("Form1.Label8");
  settle();
  EXPECT_EQ(sent(), Texts({"AT\r"}));
  EXPECT_EQ(transcript(), "");
}

TEST(MalformedStarts, ChangeNothing) {
  const TemporaryFolder folder;
  const auto start = [&](const char* field, const Json& value) {
    Json request{{"op", "start"},
                 {"folder", folder.path().string()},
                 {"now", "2026-03-01 10:00:00"},
                 {"ports", Json::array()},
                 {"modem", nullptr}};
    if (value.is_discarded()) {
      request.erase(field);
    } else {
      request[field] = value;
    }
    return request.dump();
  };
  const Json missing(Json::value_t::discarded);
  const std::vector<std::pair<const char*, Json>> rows = {
      {"folder", missing},
      {"folder", 1},
      {"folder", nullptr},
      {"folder", ""},
      {"folder", (folder.path() / "missing").string()},
      {"folder", std::string(100'000, 'x')},
      {"now", missing},
      {"now", 1},
      {"now", ""},
      {"now", "2026-03-01"},
      {"now", "2026-03-01T10:00:00"},
      {"now", "2026-13-01 10:00:00"},
      {"now", "2026-02-29 10:00:00"},
      {"now", "2026-00-01 10:00:00"},
      {"now", "2026-03-01 24:00:00"},
      {"now", "2026-03-01 10:60:00"},
      {"now", "2026-03-01 10:00:60"},
      {"now", "2026-03-01 10:00:00 "},
      {"now", "2026-03-01 10:00:00.5"},
      {"now", "-026-03-01 10:00:00"},
      {"now", "01/03/2026 10:00:00"},
      {"ports", missing},
      {"ports", nullptr},
      {"ports", 3},
      {"ports", Json::array({3})},
      {"ports", Json::array({Json::object()})},
      {"modem", 3},
      {"modem", Json::array()},
      {"modem", Json::object()},
      {"modem", {{"port", "3"}}},
      {"modem", {{"port", 3}, {"speed", 0}}},
      {"modem", {{"port", 3}, {"speed", "fast"}}},
  };
  Session session;
  for (const auto& [field, value] : rows) {
    const Json answer = Json::parse(session.answer(start(field, value)));
    EXPECT_TRUE(answer.contains("error")) << field << ": " << value.dump().substr(0, 100);
    EXPECT_EQ(answer.size(), 1u);
  }
  EXPECT_TRUE(Json::parse(session.answer(R"({"op":"state"})")).contains("error"));
  EXPECT_EQ(session.answer(start("modem", nullptr)), R"({"ok":true})");
}

TEST(LongLines, AMegabyteFromTheModemIsTakenWhole) {
  const TemporaryFolder folder;
  folder.write("COM.txt", "9600,N,8,1 3\r\n");
  Session session;
  session.answer(Json{{"op", "start"},
                      {"folder", folder.path().string()},
                      {"now", "2026-03-01 10:00:00"},
                      {"ports", Json::array({Json{{"number", 3}}})},
                      {"modem", {{"port", 3}, {"speed", 9600}}}}
                     .dump());
  session.answer(R"({"op":"run","seconds":0.1})");
  const std::string text(1 << 20, 'x');
  EXPECT_EQ(session.answer(Json{{"op", "receive"}, {"text", text}}.dump()), R"({"ok":true})");
  session.answer(R"({"op":"run","seconds":0.1})");
  EXPECT_EQ(Json::parse(session.answer(R"({"op":"get","property":"Form1.Text1.Text"})"))["value"],
            text);
}

}  // namespace
}  // namespace gsm::driver
