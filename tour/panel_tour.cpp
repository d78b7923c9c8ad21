// A tour of the panel: the same windows on the same desktop, with a user who goes along a route.

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "app/windows.h"
#include "platform/qt/desktop.h"
#include "tour/routes.h"
#include "tour/tour.h"
#include "ui/views/binder.h"
#include "ui/views/look.h"

namespace {

struct Options {
  QString folder;
  QString shots;
  QString route;
  QString console;
  double speed = 1;
};

// Says what is wrong, and ends, when the command line can't be used.
Options readOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Shows the panel at work and takes pictures of its windows.");
  parser.addHelpOption();
  parser.addOptions(
      {{"folder", "The folder of the program's files.", "DIR"},
       {"shots", "Where to put the pictures.", "DIR"},
       {"route",
        "Where to go: panel or features; or, with a SIM that wants its code, pin or services.",
        "NAME", "panel"},
       {"console", "The pipe to the simulated modem's console; without it nobody calls.", "PIPE"},
       {"speed", "How much faster than real the clock runs.", "FACTOR", "1"}});
  parser.process(arguments);
  bool isNumber = false;
  Options options{parser.value("folder"), parser.value("shots"), parser.value("route"),
                  parser.value("console"), parser.value("speed").toDouble(&isNumber)};
  const bool usable = QDir(options.folder).exists() && !options.folder.isEmpty() &&
                      !options.shots.isEmpty() && isNumber && options.speed > 0;
  if (!usable) parser.showHelp(EXIT_FAILURE);
  return options;
}

}  // namespace

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const Options options = readOptions(QCoreApplication::arguments());
  gsm::dressApplication();
  gsm::Tour* running = nullptr;
  gsm::Desktop desktop({.programFolder = QFile::encodeName(options.folder).toStdString(),
                        .speed = options.speed,
                        .atEnd = [&] { running->fail("the program has ended by itself"); }});
  gsm::Windows windows(desktop.platform());
  gsm::Panel& panel = windows.panel;
  const auto route = gsm::routeOf(options.route, panel, options.console);
  if (!route) {
    std::fprintf(stderr, "panel-tour: there is no route \"%s\"\n", qPrintable(options.route));
    return EXIT_FAILURE;
  }
  QDir().mkpath(options.shots);
  gsm::Binder screen(desktop.platform().loop);
  screen.bind(desktop.platform().windows);
  gsm::Tour tour(desktop, panel, screen, QDir(options.shots), *route);
  running = &tour;
  gsm::start(panel);
  tour.begin();
  desktop.run();
}
