#include "tests/windows/kept_pictures.h"

#include <gtest/gtest.h>
#include <qpa/qwindowsysteminterface.h>

#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "tests/windows/session.h"

namespace orvane::test {
namespace {

const QString kShots = ORVANE_SOURCE_FOLDER "/tests/windows/shots/";
const QString kFound = ORVANE_SCREENSHOT_FOLDER "/";

// How far a channel may be off, of 255: the same letters come out a shade different from another
// version of what draws them.
constexpr int kShade = 5;
constexpr int kPatienceOfLooks = 1000;  // ms
constexpr int kRest = 200;              // ms, after which nothing moves that is worth keeping

bool KeepsNew() {
  return qEnvironmentVariableIsSet("ORVANE_KEEP_LOOKS");
}

// How this machine draws the faces of the game.
QByteArray FaceFacts() {
  constexpr std::array<const char*, 6> told = {"family:", "fontversion", "antialias",
                                               "hint",    "rgba",        "lcdfilter"};
  QByteArray facts;
  for (const char* face : {"IPAPGothic", "IPAPMincho"}) {
    QProcess match;
    match.start("fc-match", {"-v", face});
    match.waitForFinished();
    for (const QByteArray& line : match.readAllStandardOutput().split('\n')) {
      const bool wanted = std::any_of(told.begin(), told.end(),
                                      [&](const char* word) { return line.contains(word); });
      if (wanted) facts += line.trimmed() + "\n";
    }
  }
  return facts;
}

bool LooksAtFaces() {
  QFile kept(kShots + "fonts.txt");
  const QByteArray facts = FaceFacts();
  if (KeepsNew()) {
    QDir().mkpath(kShots);
    return kept.open(QFile::WriteOnly) && kept.write(facts) == facts.size();
  }
  if (kept.open(QFile::ReadOnly) && kept.readAll() == facts) return true;
  std::fputs("the faces differ from those of the kept pictures, which are not compared\n", stderr);
  return false;
}

// How many pixels differ; all where the sizes do.
int Differing(const QImage& found, const QImage& kept) {
  if (found.size() != kept.size()) return std::max(1, found.width() * found.height());
  int differing = 0;
  for (int y = 0; y < found.height(); ++y) {
    for (int x = 0; x < found.width(); ++x) {
      const QRgb a = found.pixel(x, y);
      const QRgb b = kept.pixel(x, y);
      const bool same = std::abs(qRed(a) - qRed(b)) <= kShade &&
                        std::abs(qGreen(a) - qGreen(b)) <= kShade &&
                        std::abs(qBlue(a) - qBlue(b)) <= kShade;
      if (!same) ++differing;
    }
  }
  return differing;
}

}  // namespace

bool CanCompare() {
  static const bool can = LooksAtFaces();
  return can;
}

QImage KeptPicture(const std::string& name) {
  return QImage(kShots + QString::fromStdString(name) + ".png");
}

void LooksAsKept(QWidget& window, const std::string& name) {
  if (!CanCompare()) return;
  // What lies under the pointer may be marked. It has never been over a box.
  if (qobject_cast<QDialog*>(&window) == nullptr) {
    QWindowSystemInterface::handleLeaveEvent(window.windowHandle());
  }
  Session::Settle();
  const QString language =
      UsualLanguage() == kOwnLanguage ? "" : "-" + QString::fromStdString(UsualLanguage());
  const QString place = QString::number(window.devicePixelRatio()) + "x" + language + "/" +
                        QString::fromStdString(name) + ".png";
  if (KeepsNew()) {
    QTest::qWait(kRest);
    QDir().mkpath(QFileInfo(kShots + place).path());
    ASSERT_TRUE(Session::Shown(window).save(kShots + place, "PNG", 0)) << name;
    return;
  }
  const QImage kept(kShots + place);
  ASSERT_FALSE(kept.isNull()) << "no picture is kept of " << name;
  QElapsedTimer clock;
  clock.start();
  QImage found = Session::Shown(window);
  while (Differing(found, kept) > 0 && clock.elapsed() < kPatienceOfLooks) {
    Session::Settle();
    found = Session::Shown(window);
  }
  const int differing = Differing(found, kept);
  if (differing == 0) return;
  QDir().mkpath(QFileInfo(kFound + place).path());
  found.save(kFound + place);
  ADD_FAILURE() << name << ": " << differing << " pixels differ from the kept picture; see "
                << (kFound + place).toStdString();
}

}  // namespace orvane::test
