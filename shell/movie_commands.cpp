#include "shell/movie_commands.h"

#include <filesystem>

#include "app/movie_commands.h"
#include "core/menu_tree.h"
#include "movies/movie_options.h"
#include "shell/det_movie_dialog.h"
#include "shell/main_window.h"
#include "shell/movie_creator_window.h"
#include "shell/movie_viewer.h"

namespace quillane {
namespace {

constexpr int CreatorItem = 11;   // mnuWin(11) "Fractal Movie Creator"
constexpr int ViewerItem = 13;    // mnuWin(13) "Fractal Movie Viewer"
constexpr int DetMovieItem = 19;  // mnuWin(19) "Create Det Movie"

void listWindow(MainWindow& frame, int item, bool shown) {
    Workbench& wb = frame.state().wb;
    wb.Menu.setVisible(MenuTable::key("mnuWin", item), shown);
    wb.Menu.setChecked(MenuTable::key("mnuWin", item), shown);
}

void bringUp(QWidget& w) {
    if (w.isMinimized()) w.showNormal();
    w.show();
    w.raise();
    w.activateWindow();
}

MovieViewerWindow& viewer(MainWindow& frame) {
    if (auto* w = frame.findChild<MovieViewerWindow*>("frmWeb")) return *w;
    auto* w = new MovieViewerWindow(&frame);
    QObject::connect(w, &MovieViewerWindow::hidden, &frame,
                     [&frame] { listWindow(frame, ViewerItem, false); });
    return *w;
}

void showViewer(MainWindow& frame, const QString& file, const QString& caption) {
    ShowMovieInViewer(frame, file, caption);
}

MovieCreatorWindow& creator(MainWindow& frame) {
    if (auto* w = frame.findChild<MovieCreatorWindow*>("frmCombinations")) return *w;
    auto* w = new MovieCreatorWindow(
        frame.state(), frame.host(),
        [&frame](const QString& f, const QString& c) { showViewer(frame, f, c); }, &frame);
    return *w;
}

DetMovieDialog& detMovie(MainWindow& frame) {
    if (auto* w = frame.findChild<DetMovieDialog*>("frmAnimDetGif")) return *w;
    auto* w = new DetMovieDialog(
        frame.state(), frame.host(), [&frame] { frame.refreshWindows(); },
        [&frame](const QString& f, const QString& c) { showViewer(frame, f, c); }, &frame);
    return *w;
}

void showCreator(MainWindow& frame) {
    MovieCreatorWindow& w = creator(frame);
    // The lists follow the fractal list as it is now.
    if (!w.isVisible()) w.reload();
    bringUp(w);
    listWindow(frame, CreatorItem, true);
}

void showDetMovie(MainWindow& frame) {
    bringUp(detMovie(frame));
    listWindow(frame, DetMovieItem, true);
}

}  // namespace

MovieViewerWindow& ShowMovieInViewer(MainWindow& frame, const QString& file, const QString& caption) {
    MovieViewerWindow& w = viewer(frame);
    w.setWindowTitle(caption);
    bringUp(w);
    w.ShowNewMovie(file);
    listWindow(frame, ViewerItem, true);
    return w;
}

void RegisterMovieCommands(MainWindow& frame) {
    frame.setCommand("mnuFileNewMovie", [&frame] { showCreator(frame); });
    frame.setCommand("mnuFileSaveAnimGif", [&frame] { showDetMovie(frame); });
    frame.setCommand("mnuFileOpenMovie", [&frame] {
        FileDialogRequest r;
        r.title = OpenMovieTitle;
        r.filters = {{AnimatedGifFilter, "*.gif"}};
        r.folderKey = "SaveMovie";
        const auto file = frame.host().openFileName(r);
        if (!file) return;
        if (!std::filesystem::exists(*file)) {
            frame.host().warn(MovieErrorTitle, "Error opening file: " + *file);
            return;
        }
        showViewer(frame, QString::fromStdString(*file), QString::fromStdString(ViewerCaptionFor(*file)));
    });
    frame.setCommand(MenuTable::key("mnuWin", CreatorItem), [&frame] { showCreator(frame); });
    frame.setCommand(MenuTable::key("mnuWin", DetMovieItem), [&frame] { showDetMovie(frame); });
    frame.setCommand(MenuTable::key("mnuWin", ViewerItem), [&frame] {
        bringUp(viewer(frame));
        listWindow(frame, ViewerItem, true);
    });
}

}  // namespace quillane
