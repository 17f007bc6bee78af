#pragma once
// The movie items of the File and Window menus: the movie creator (F11), the deterministic movie (F12)
// and the movie viewer.
#include <QString>

namespace quillane {

class MainWindow;
class MovieViewerWindow;

void RegisterMovieCommands(MainWindow& frame);
// The viewer, made on first use; it shows the movie with the caption.
MovieViewerWindow& ShowMovieInViewer(MainWindow& frame, const QString& file, const QString& caption);

}  // namespace quillane
