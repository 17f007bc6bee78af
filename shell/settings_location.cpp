#include "shell/settings_location.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

#include "core/settings_file.h"

namespace quillane {

std::string SettingsFilePath(const QString& programDir) {
    const QString overridden = qEnvironmentVariable("QUILLANE_SETTINGS");
    if (!overridden.isEmpty()) return overridden.toStdString();
    // Permission bits say nothing to the superuser or on a read-only mount: try a file.
    if (!programDir.isEmpty()) {
        QTemporaryFile probe(QDir(programDir).filePath("settings-probe-XXXXXX"));
        if (probe.open()) return QDir(programDir).filePath(SettingsFileName).toStdString();
    }
    const QString config = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    return QDir(config).filePath(SettingsFileName).toStdString();
}

}  // namespace quillane
