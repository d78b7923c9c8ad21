#pragma once

#include <string_view>

namespace gsm {

struct Platform;
class Window;

class Form1;
class Form2;
class Form3;
class Form4;
class Form5;
class Form6;
class Form7;
class Form8;
class Form9;
class Form10;
class Form11;
class Form12;
class Form14;
class Form15;
class Form16;
class Form17;
class Form18;
class Form19;
class Form20;
class frmSettings;

/// The directory through which the windows reach one another. It owns none of them, and knows only
/// their names: whoever touches a window includes its header.
struct Panel {
  Platform& platform;

  Form1& form1;
  Form2& form2;
  Form3& form3;
  Form4& form4;
  Form5& form5;
  Form6& form6;
  Form7& form7;
  Form8& form8;
  Form9& form9;
  Form10& form10;
  Form11& form11;
  Form12& form12;
  Form14& form14;
  Form15& form15;
  Form16& form16;
  Form17& form17;
  Form18& form18;
  Form19& form19;
  Form20& form20;
  frmSettings& settings;
};

}  // namespace gsm
