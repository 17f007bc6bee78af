#include "shell/qt_host.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <functional>

#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::TempDir;

// Acts on the modal dialog as soon as it is up.
template <class Dialog>
void whenShown(std::function<void(Dialog&)> act) {
    QTimer::singleShot(0, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

struct SeenBox {
    QString title, text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

Answer pressIn(QtHost& host, MessageIcon icon, MessageButtons buttons, QMessageBox::StandardButton press,
               SeenBox& seen) {
    whenShown<QMessageBox>([&seen, press](QMessageBox& box) {
        seen = {box.windowTitle(), box.text(), box.icon(), box.standardButtons()};
        box.button(press)->click();
    });
    return host.message(icon, "Continue without saving?", "Line one.   \n\nLine <two>", buttons);
}

TEST(QtHostMessages, TheBoxShowsTitleTextIconAndButtonsAndGivesTheAnswer) {
    QtHost host("/");
    SeenBox seen;
    EXPECT_EQ(pressIn(host, MessageIcon::Question, MessageButtons::OKCancel, QMessageBox::Cancel, seen),
              Answer::Cancel);
    EXPECT_EQ(seen.title, "Continue without saving?");
    EXPECT_EQ(seen.text, "Line one.   \n\nLine <two>");
    EXPECT_EQ(seen.icon, QMessageBox::Question);
    EXPECT_EQ(seen.buttons, QMessageBox::Ok | QMessageBox::Cancel);
}

TEST(QtHostMessages, EachButtonSetMapsToItsAnswers) {
    QtHost host("/");
    SeenBox seen;
    EXPECT_EQ(pressIn(host, MessageIcon::Warning, MessageButtons::OK, QMessageBox::Ok, seen), Answer::OK);
    EXPECT_EQ(seen.buttons, QMessageBox::Ok);
    EXPECT_EQ(seen.icon, QMessageBox::Warning);
    EXPECT_EQ(pressIn(host, MessageIcon::Information, MessageButtons::YesNo, QMessageBox::No, seen),
              Answer::No);
    EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(seen.icon, QMessageBox::Information);
    EXPECT_EQ(pressIn(host, MessageIcon::Critical, MessageButtons::YesNoCancel, QMessageBox::Yes, seen),
              Answer::Yes);
    EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(seen.icon, QMessageBox::Critical);
}

TEST(QtHostFiles, FiltersKeepTheirDescriptionsWithBlankSeparatedPatterns) {
    EXPECT_EQ(QtHost::nameFilters(
                  {{"Iterated Function Systems (*.ifs)", "*.ifs"}, {"Chaos Game Files (*.chg)", "*.chg"}}),
              (QStringList{"Iterated Function Systems (*.ifs)", "Chaos Game Files (*.chg)"}));
    EXPECT_EQ(QtHost::nameFilters({{"Images (*.gif; *.png; *.jpg)", "*.gif; *.png; *.jpg"},
                                   {"JPG images (*.jpg, *.jpeg)", "*.jpg; *.jpeg"}}),
              (QStringList{"Images (*.gif *.png *.jpg)", "JPG images (*.jpg *.jpeg)"}));
    EXPECT_EQ(QtHost::nameFilters({{"Polygons", "*.gon"}}), QStringList{"Polygons (*.gon)"});
}

struct SeenDialog {
    QString title, folder;
    QStringList filters;
};

std::optional<std::string> chooseIn(QtHost& host, const std::string& key, const QString& file,
                                    SeenDialog& seen) {
    whenShown<QFileDialog>([&seen, file](QFileDialog& dialog) {
        seen = {dialog.windowTitle(), dialog.directory().absolutePath(), dialog.nameFilters()};
        if (file.isEmpty()) {
            dialog.reject();
            return;
        }
        dialog.selectFile(file);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    FileDialogRequest request{"Open IFS file", {{"Iterated Function Systems (*.ifs)", "*.ifs"}}, "", key};
    return host.openFileName(request);
}

TEST(QtHostFiles, EachDialogStartsInTheProgramFolderAndThenWhereItWasLastUsed) {
    TempDir program, elsewhere;
    const std::string chosen = elsewhere.write("list.ifs", "A {\n}\n");
    QtHost host(QString::fromStdString(program.path("")));
    const QString programFolder = QDir(QString::fromStdString(program.path(""))).absolutePath();
    const QString otherFolder = QDir(QString::fromStdString(elsewhere.path(""))).absolutePath();
    SeenDialog seen;

    EXPECT_EQ(chooseIn(host, "OpenIFS", QString::fromStdString(chosen), seen), chosen);
    EXPECT_EQ(seen.title, "Open IFS file");
    EXPECT_EQ(seen.filters, QStringList{"Iterated Function Systems (*.ifs)"});
    EXPECT_EQ(seen.folder, programFolder);

    EXPECT_EQ(chooseIn(host, "OpenIFS", "", seen), std::nullopt);
    EXPECT_EQ(seen.folder, otherFolder);
    EXPECT_EQ(chooseIn(host, "OpenChaos", "", seen), std::nullopt);
    EXPECT_EQ(seen.folder, programFolder);
}

TEST(QtHostYield, EventsAreProcessedOnlyWhenFifteenMillisecondsHavePassed) {
    QtHost host("/");
    qint64 now = 1000;
    host.setClock([&now] { return now; });
    int refreshed = 0, handled = 0;
    host.onYield = [&refreshed] { ++refreshed; };
    QObject receiver;
    auto post = [&] {
        QMetaObject::invokeMethod(
            &receiver, [&handled] { ++handled; }, Qt::QueuedConnection);
    };

    post();
    now = 1014;
    host.yield();
    EXPECT_EQ(handled, 0);
    EXPECT_EQ(refreshed, 0);
    now = 1015;
    host.yield();
    EXPECT_EQ(handled, 1);
    EXPECT_EQ(refreshed, 1);
    post();
    now = 1020;
    host.yield();
    EXPECT_EQ(handled, 1);
    now = 1031;
    host.yield();
    EXPECT_EQ(handled, 2);
    EXPECT_EQ(refreshed, 2);
}

}  // namespace
}  // namespace quillane
