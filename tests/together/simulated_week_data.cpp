// What the user sets for data calls and fax in the simulated week.

#include "panel/form1.h"
#include "settings/data_choices.h"
#include "settings/form14.h"
#include "tests/together/simulated_week.h"

namespace gsm {

// Each page reads when it comes up, and the window anew each time.
void SimulatedWeek::openData(CommandButton Form14::*page) {
  if (!data().Visible.peek()) {
    showPanel();
    press(form1().Command10);
    ASSERT_TRUE(data().Visible.peek());
    EXPECT_FALSE(form1().Visible.peek());
    EXPECT_TRUE(data().Frame1.Visible.peek());
  }
  press(data().*page);
  EXPECT_EQ(data().Frame1.Visible.peek(), page == &Form14::Command1);
  EXPECT_EQ(data().Frame2.Visible.peek(), page == &Form14::Command2);
  EXPECT_EQ(data().Frame3.Visible.peek(), page == &Form14::Command3);
}

void SimulatedWeek::setBearer() {
  comeToRest();
  openData(&Form14::Command1);
  const auto told = [this] {
    return std::string(kBearerSpeeds[bearer_.speed].words) + "  " +
           std::string(kConnectionElements[bearer_.element].words);
  };
  EXPECT_EQ(data().Label1.Caption.peek(), told());
  EXPECT_EQ(data().Combo1.Text.peek(), "");
  if (perhaps(6)) {
    sent();
    press(data().Command6);
    EXPECT_EQ(sent(), Texts{}) << "nothing is chosen";
    return;
  }
  bearer_.speed = below(kBearerSpeeds.size());
  bearer_.element = below(kConnectionElements.size());
  pick(data().Combo1, static_cast<int>(bearer_.speed));
  pick(data().Combo2, static_cast<int>(bearer_.element));
  press(data().Command6);
  EXPECT_EQ(data().Label1.Caption.peek(), "Changes SuccessFul");
  press(data().Command1);
  EXPECT_EQ(data().Label1.Caption.peek(), told());
}

// For the last two modes of the correction there is nothing to send, and nothing is the default.
void SimulatedWeek::setCompression() {
  comeToRest();
  openData(&Form14::Command2);
  EXPECT_EQ(data().Label4.Caption.peek(),
            std::string("Compression ") + (bearer_.compresses ? "V42bis Compression" : "Default") +
                " , Error Correction " + (bearer_.corrects ? "2 Auto Reliable Mode" : "0 Default"));
  const std::size_t compression = below(kCompressions.size());
  pick(data().Combo3, static_cast<int>(compression));
  press(data().Command7);
  EXPECT_EQ(data().Label4.Caption.peek(), "Changes SuccessFul-Compression");
  bearer_.compresses = compression == 1;
  const std::size_t correction = below(kCorrections.size());
  pick(data().Combo4, static_cast<int>(correction));
  press(data().Command8);
  EXPECT_EQ(data().Label4.Caption.peek(), "Changes SuccessFul-Error Correction");
  bearer_.corrects = correction == 1;
}

// A speed is one of a page in a fax call, and there is none.
void SimulatedWeek::setFax() {
  comeToRest();
  openData(&Form14::Command3);
  EXPECT_EQ(data().Label5.Caption.peek(), std::string(kFaxClasses[bearer_.faxClass].words));
  bearer_.faxClass = below(kFaxClasses.size());
  pick(data().Combo5, static_cast<int>(bearer_.faxClass));
  press(data().Command4);
  EXPECT_EQ(data().Label5.Caption.peek(), "Changes SuccessFul-FCLASS");
  const bool sends = perhaps(2);
  ComboBox& speed = sends ? data().Combo6 : data().Combo7;
  if (perhaps(2)) {
    pick(speed, static_cast<int>(below(kFaxSpeeds.size())));
  } else {
    type(speed, "fast");
  }
  press(sends ? data().Command5 : data().Command9);
  EXPECT_EQ(data().Label5.Caption.peek(), "Changes UnsuccessFul");
}

}  // namespace gsm
