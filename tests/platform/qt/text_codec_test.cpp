#include "platform/qt/text_codec.h"

#include <gtest/gtest.h>

namespace gsm {
namespace {

TEST(TextCodec, BringsEveryByteBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(toQt(all).size(), 256);
  EXPECT_EQ(fromQt(toQt(all)), all);
}

TEST(TextCodec, KnowsTheCodePagesOwnCharacters) {
  EXPECT_EQ(toQt("\x80 \x99 \xE9"), QString::fromUtf8("€ ™ é"));
  EXPECT_EQ(fromQt(QString::fromUtf8("€ ™ é")), "\x80 \x99 \xE9");
}

TEST(TextCodec, MakesAQuestionMarkOfWhatTheCodePageLacks) {
  EXPECT_EQ(fromQt(QString::fromUtf8("Ω→ж")), "???");
}

TEST(TextCodec, MakesOneQuestionMarkOfACharacterBeyondThePlane) {
  EXPECT_EQ(fromQt(QString::fromUtf8("a😀b")), "a?b");
}

TEST(TextCodec, PutsALetterAndItsAccentTogether) {
  EXPECT_EQ(fromQt(QString::fromUtf8("e\u0301")), "\xE9");
}

TEST(TextCodec, ControlCharactersOfUnicodeThatTheCodePageUsesOtherwiseAreLacking) {
  EXPECT_EQ(fromQt(QString(QChar(0x80))), "?");
}

}  // namespace
}  // namespace gsm
