#include "app/form1.h"

namespace gsm {

void Form1::Timer1_Tick() { Label4.Caption = platform().clock.localTime().timeOfDay(); }

}  // namespace gsm
