#include "src/frontend/shared/preferences.h"

#include <QSettings>
#include <QString>

namespace orvane {
namespace {

constexpr const char* kLanguage = "language";

QSettings OpenSettings() {
  return {QSettings::IniFormat, QSettings::UserScope, "orvane", "orvane"};
}

}  // namespace

std::string PreferredLanguage() {
  return OpenSettings().value(kLanguage).toString().toStdString();
}

void PreferLanguage(const std::string& code) {
  OpenSettings().setValue(kLanguage, QString::fromStdString(code));
}

}  // namespace orvane
