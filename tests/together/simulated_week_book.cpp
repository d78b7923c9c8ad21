// What the user does with the phone book in the simulated week.

#include <algorithm>

#include "panel/form1.h"
#include "phonebook/form3.h"
#include "phonebook/form4.h"
#include "tests/together/simulated_week.h"

namespace gsm {

void SimulatedWeek::openCallWindow() {
  showPanel();
  click(form1().Command2);
  settle();
  model_.open();
}

void SimulatedWeek::closeCalls() {
  comeToRest();
  needCalls();
  world().time().after(Duration::zero(), [this] { calls().userClose(); });
  settle();
  model_.close();
}

void SimulatedWeek::needCalls() {
  followLoading();
  if (!calls().Visible.peek()) openCallWindow();
}

void SimulatedWeek::followLoading() {
  if (calls().isLoaded() && !model_.window()) model_.load();
}

void SimulatedWeek::reload() {
  comeToRest();
  needCalls();
  click(calls().Command5);
  EXPECT_EQ(rows(), Texts{}) << "the list is emptied at once";
  settle();
  EXPECT_EQ(callStatus(), "");
  model_.reload();
}

void SimulatedWeek::reopenCalls() {
  closeCalls();
  openCallWindow();
}

void SimulatedWeek::pickEntryAtRandom() {
  needCalls();
  if (rows().empty()) return;
  const std::size_t row = below(rows().size());
  select(static_cast<int>(row));
  model_.pick(row);
}

// Numbers and names of all sorts: with codes, with a comma, and some that the card or the list has
// no room for or that a download doesn't get past.
NewEntry SimulatedWeek::someEntry() {
  static const std::vector<std::string> names = {
      "Anna", "bert",   "Cora, Ms",      "Dr. No",       "eve 2nd",
      "x",    "O'Neil", "Frederike Zoo", "Twelve lettr", "garage"};
  static const std::vector<std::string> codes = {"", "+1", "+49", "0033"};
  if (perhaps(20)) return {"", "", digits(below(3)), ""};
  if (perhaps(30)) return {"", "", "", "Nobody"};
  if (perhaps(25)) return {"", "", digits(1 + below(15)), "fourteen lette"};
  if (perhaps(40)) return {"", "", digits(8), "thirteen lets"};
  if (perhaps(40)) return {"", "", digits(1 + below(3)), "short"};
  if (perhaps(10)) return {oneOf(codes), digits(4), digits(12 + below(4)), oneOf(names)};
  if (perhaps(2)) return {"", "", "0" + digits(8 + below(3)), oneOf(names)};
  return {"+" + digits(2), digits(below(3)), digits(6 + below(3)), oneOf(names)};
}

void SimulatedWeek::addSomeEntry() {
  comeToRest();
  addEntry(someEntry());
}

// A call that ends meanwhile has the last word on the status line.
void SimulatedWeek::addEntry(const NewEntry& entry, bool inPeace) {
  needCalls();
  Form4& window = panel().form4;
  click(calls().Command2);
  ASSERT_TRUE(window.Visible.peek());
  EXPECT_FALSE(calls().Visible.peek());
  type(window.Text1, entry.countryCode);
  type(window.Text2, entry.areaCode);
  type(window.Text3, entry.number);
  type(window.Text4, entry.name);
  if (perhaps(15)) {
    click(window.Command2);  // thinks better of it
    return;
  }
  click(window.Command1);
  settle();
  const std::string phone = entry.countryCode + entry.areaCode + entry.number;
  const std::string box = model_.add(entry);
  expectBox(box);
  // A number that the list has no place for leaves the window up.
  const bool staysUp = box.empty() && phone.size() > 20;
  EXPECT_EQ(window.Visible.peek(), staysUp);
  EXPECT_EQ(calls().Visible.peek(), !staysUp);
  if (inPeace && box.empty() && !staysUp) {
    EXPECT_EQ(callStatus(), "New Entry  " + phone);
  }
  if (staysUp) click(window.Command2);
}

// Where a call may have cleared the reply away, the box says whether it did.
void SimulatedWeek::removeEntry(std::size_t row, bool perhapsUnheard) {
  needCalls();
  select(static_cast<int>(row));
  click(calls().Command3);
  settle();
  const bool unheard = perhapsUnheard && machine().boxes.takeShown().size() == 1;
  if (unheard) {
    model_.removeUnheard(row);
    return;
  }
  expectBox(model_.remove(row));
}

void SimulatedWeek::removeEntryAtRandom() {
  comeToRest();
  needCalls();
  if (rows().empty()) return;
  // Those at the end of the list are of most interest to the counts.
  const std::size_t count = rows().size();
  removeEntry(perhaps(2) ? count - 1 - below(std::min<std::size_t>(count, 3)) : below(count));
}

void SimulatedWeek::removeNone() {
  comeToRest();
  reopenCalls();  // nothing is selected in a new list
  click(calls().Command3);
  settle();
  expectBox("Select the Number To Delete In PhoneBook");
}

// The file knows nothing of it until the book is reloaded. What a download doesn't get past goes
// first.
void SimulatedWeek::useCardElsewhere() {
  comeToRest();
  if (model_.card().size() < 3) return;
  const auto& card = model_.card();
  auto gone = std::find_if(card.begin(), card.end(),
                           [](const auto& each) { return BookModel::endsDownload(each.second); });
  if (gone == card.end()) {
    gone = std::next(card.begin(), static_cast<std::ptrdiff_t>(below(card.size())));
  }
  const int location = gone->first;
  inPanel([this, location] {
    form1().modem.exchange("AT+CPBW=" + std::to_string(location));
    form1().Text1.clear();
  });
  settle();
  model_.eraseElsewhere(location);
}

// A modem that hears nothing for a while: an entry is added all the same, a deletion fails, a
// reload empties the list and a call window doesn't open.
void SimulatedWeek::useSilentModem() {
  comeToRest();
  if (perhaps(2)) needCalls();
  tell("silent on");
  model_.silence(true);
  if (!calls().isLoaded()) {
    openCallWindow();
  } else if (!calls().Visible.peek()) {
    // Nobody can touch it.
  } else if (const std::size_t deed = below(3); deed == 0) {
    addEntry(someEntry());
  } else if (deed == 1 && !rows().empty()) {
    removeEntry(below(rows().size()));
  } else {
    click(calls().Command5);
    settle();
    model_.reload();
  }
  run(60);
  tell("silent off");
  model_.silence(false);
}

// Somebody calls while the book is at work. An entry is added as ever; a deletion may miss its
// reply; what a download makes of it nobody can tell, so a second one follows in peace.
void SimulatedWeek::useBookDuringACall() {
  comeToRest();
  needCalls();
  const std::size_t deed = below(3);
  if (deed == 1 && rows().empty()) return;
  const double begin = static_cast<double>(below(2500)) / 1000;
  const double end = begin + 4 + static_cast<double>(below(100)) / 10;
  const std::string caller = someCaller();
  world().time().after(fromSeconds(begin), [this, caller] { tell("ring " + caller); });
  const std::string farewell = perhaps(2) ? "giveup" : "giveup silent";
  world().time().after(fromSeconds(end), [this, farewell] { tell(farewell); });
  if (deed == 0) {
    addEntry(someEntry(), /*inPeace=*/false);
  } else if (deed == 1) {
    removeEntry(below(rows().size()), /*perhapsUnheard=*/true);
  } else {
    click(calls().Command5);
    settle();
    reload();
  }
}

}  // namespace gsm
