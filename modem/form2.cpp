#include "modem/form2.h"

#include <array>

#include "panel/panel.h"
#include "platform/files.h"
#include "platform/platform.h"

namespace gsm {

Form2::Form2(Panel& panel) : FeatureWindow(panel, "Form2", {.Caption = "GSM-Model Details"}) {
  Command1.Click = [this] { readModelFile(); };
}

// "View": fills the labels from the file of the last modem. Without a trap: a missing file ends the
// program. The file stays open until the next revision is saved.
void Form2::readModelFile() {
  Label2.Caption = "IMEI: ";
  Label4.Caption = kModelHeading;
  Files& files = platform().files;
  const int file = files.freeFile();
  files.openForInput(file, kModelFile);

  std::array<std::string, 4> lines;  // IMEI, two of maker and model, revision
  std::size_t count = 0;
  while (!files.atEnd(file)) {
    const std::string line = files.readLine(file);
    if (line.empty()) continue;
    if (count < lines.size()) lines[count] = line;
    Label3.Caption = lines[0];
    Label5.Caption = lines[1] + lines[2];
    Label6.Caption = lines[3];
    ++count;
  }
}

}  // namespace gsm
