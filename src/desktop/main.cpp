// The program: reads the command line and runs the editor in a window, by a script, or for a picture.
#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

#include "base/error.h"
#include "commands/files/named_files.h"
#include "desktop/dialogs/picture_prompts.h"
#include "desktop/dialogs/qt_prompts.h"
#include "desktop/dialogs/shown_text.h"
#include "desktop/frame/colour_scheme.h"
#include "desktop/frame/first_paint.h"
#include "desktop/frame/main_window.h"
#include "desktop/system/crash_guard.h"
#include "desktop/system/kit.h"
#include "desktop/system/path_text.h"
#include "desktop/system/script_host.h"

namespace velk {
namespace {

constexpr int kUsageError = 1;
constexpr int kFatalError = 3;

struct CommandLine {
  QCommandLineParser parser;
  const QCommandLineOption script{"script", "Run the editor unattended on a script.", "file"};
  const QCommandLineOption picture{"picture", "Write a PNG picture of the main window and end.", "file"};
  const QCommandLineOption kit{"kit", "Open the map of the starter kit."};
  QCommandLineOption timeStart{"time-start", "Print the CPU time in ms until the window was painted."};

  CommandLine() {
    parser.setApplicationDescription("Level editor for Quake maps.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption(kit);
    parser.addOption(script);
    parser.addOption(picture);
    timeStart.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(timeStart);
    parser.addPositionalArgument("map", "Maps to open; .mrg, .bru and .pts files go to the map before them.",
                                 "[map...]");
  }

  bool isUnattended() const { return parser.isSet(script) || parser.isSet(picture); }
  bool needsDisplay() const { return !isUnattended() && !parser.isSet("help") && !parser.isSet("version"); }
};

bool HasDisplay() {
  return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY") || std::getenv("QT_QPA_PLATFORM");
}

// Ends the program without running destructors: the model may be in the middle of a change.
[[noreturn]] void Leave(int status) {
  std::fflush(nullptr);
  _exit(status);
}

void Print(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  const std::string where = WhereErrorsHappen();
  if (!where.empty()) std::fprintf(stderr, "(%s)\n", where.c_str());
}

void FailOnStandardError(const std::string& message) {
  Print(message);
  Leave(kFatalError);
}

void FailInBox(const std::string& message) {
  CrashGuard::RunNow();
  Print(message);
  QMessageBox box(QMessageBox::Critical, "Velk Error...", ShownText(message), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(ShownText(WhereErrorsHappen()));
  box.exec();
  Leave(0);
}

std::vector<std::string> TextsOf(const QStringList& list) {
  std::vector<std::string> texts;
  for (const QString& text : list) texts.push_back(PathBytes(text));
  return texts;
}

QStringList ArgumentsOf(int count, char** values) {
  QStringList arguments;
  for (int i = 0; i < count; ++i) arguments << PathText(values[i]);
  return arguments;
}

// What the command line says.
struct Request {
  std::vector<std::string> maps;
  bool kit = false;
  bool timeStart = false;

  std::vector<std::string> files(const EditorPlace& place) const {
    std::vector<std::string> all = maps;
    if (kit) all.push_back(KitMap(place));
    return all;
  }
};

// A frame with its title bar that the screen has no room for fills it.
void ShowFitting(QWidget& window) {
  const QSize room = window.screen()->availableSize();
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const bool fits = window.width() <= room.width() && window.height() + title <= room.height();
  fits || window.isMaximized() ? window.show() : window.showMaximized();
}

int RunWindow(const Request& request) {
  ColourScheme scheme;
  QtPrompts prompts;
  TVelkWindow window(FindEditorPlace(), prompts);
  prompts.setOwner(&window);
  prompts.setPaths(&window.editor().services().paths);
  // Also the default wads are read with a user there.
  window.editor().textures().setForgiving(true);
  window.start();
  const CrashGuard guard([&window] { window.editor().rescue().writeCopies(); });
  if (request.timeStart) ReportFirstPaint(window);
  scheme.takeAnswer();
  window.keepState();
  ShowFitting(window);
  window.editor().rescue().offer();
  window.openFiles(request.files(window.editor().place()));
  return QApplication::exec();
}

int RunPicture(const Request& request, const std::string& picture) {
  PicturePrompts prompts;
  TVelkWindow window(FindEditorPlace(), prompts);
  prompts.setSettings(&window.editor().settings());
  window.start();
  for (const std::string& file : request.files(window.editor().place())) OpenNamed(window.editor(), file);
  window.show();
  if (window.savePicture(picture)) return 0;
  std::fprintf(stderr, "velk: couldn't write %s\n", picture.c_str());
  return kFatalError;
}

int Refuse(const QString& why) {
  std::fprintf(stderr, "velk: %s\n", qPrintable(why));
  return kUsageError;
}

// Qt ends the program by a crash when it cannot reach the display, and without any clean-up when it loses a
// Wayland compositor.
void PassOn(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg || message.startsWith("The Wayland connection")) CrashGuard::RunNow();
  std::fprintf(stderr, "%s\n", qPrintable(message));
  if (type == QtFatalMsg) Leave(kUsageError);
}

// What runs unattended prints nothing that is not its own.
void PassOnFatal(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtFatalMsg) PassOn(type, context, message);
}

int RunProgram(CommandLine& line, const QStringList& arguments) {
  QCommandLineParser& parser = line.parser;
  if (!parser.parse(arguments)) return Refuse(parser.errorText());
  if (parser.isSet("help")) parser.showHelp(0);
  if (parser.isSet("version")) parser.showVersion();
  const auto value = [&parser](const auto& option) { return PathBytes(parser.value(option)); };
  const Request request{TextsOf(parser.positionalArguments()), parser.isSet(line.kit),
                        parser.isSet(line.timeStart)};
  SetErrorHandler(line.isUnattended() ? FailOnStandardError : FailInBox);
  if (parser.isSet(line.script)) return RunScriptFile(value(line.script), request.maps);
  if (parser.isSet(line.picture)) return RunPicture(request, value(line.picture));
  return RunWindow(request);
}

}  // namespace
}  // namespace velk

int main(int argc, char** argv) {
  velk::CommandLine line;
  const bool understood = line.parser.parse(velk::ArgumentsOf(argc, argv));
  if (!line.needsDisplay()) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  } else if (!velk::HasDisplay()) {
    return velk::Refuse(understood
                            ? "there is no display; use --script FILE or --picture FILE to run without one"
                            : line.parser.errorText());
  }
  qInstallMessageHandler(line.isUnattended() ? velk::PassOnFatal : velk::PassOn);
  QApplication application(argc, argv);
  // Qt takes over the user's locale; the editor's files have decimal points everywhere.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("velk");
  QApplication::setApplicationVersion(VELK_VERSION);
  QApplication::setDesktopFileName("velk");
  QApplication::setWindowIcon(QIcon(":/icons/velk.svg"));
  // Without the arguments that Qt took for itself.
  return velk::RunProgram(line, velk::ArgumentsOf(argc, argv));
}
