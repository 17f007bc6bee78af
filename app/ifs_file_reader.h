#pragma once
// Reading .ifs and .chg files into the fractal list: the menu commands, which talk to the person,
// and the start routine's reader, which cannot and leaves a code for the start to report.
#include <string>

namespace quillane {

class Host;
class Workbench;

// Reads an .ifs file into the list: Start entries are kept (0 replaces the list); an empty
// FileName asks with the file dialog, and Cancel ends quietly. True when at least one entry was
// loaded. The windows then set up the design and redraw from the new CurrentIFS.
bool OpenIFSFile(Workbench& wb, Host& host, int Start, const std::string& FileName);
// The same for a .chg file of chaos game definitions; a new list switches to the fixed point form
// in chaos game mode.
bool OpenChaosFile(Workbench& wb, Host& host, int Start, const std::string& FileName);

struct FileOpenResult {
    bool ListLoaded = false;  // the list holds at least one entry from the file
    bool Failed = false;      // the file was there but could not be read whole
    int Code = -1;            // the start routine's message: 0, 1, 2; -1 for nothing to report
    std::string Name;         // the block named by code 1
};

// The start routine's reader. FileName is the command-line file (commandLine true), or the
// default file; empty stands for "default." + Kind in the working directory. The last three
// letters of the name choose the rows: "ifs" coefficient rows, anything else chaos game rows, made
// into chaos game entries only for "chg"; the caller starts a new chaos game before reading one.
// A command-line file enters the recent files, and any failure with it ends quietly. A missing
// default file is no failure.
FileOpenResult FileOpen(Workbench& wb, const std::string& Kind, const std::string& FileName,
                        bool commandLine);

// The text the start routine shows, title "File Error", for a failed FileOpen with a code.
std::string FileOpenMessage(const FileOpenResult& result);

}  // namespace quillane
