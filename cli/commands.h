#pragma once
#include "cli/cli_host.h"
#include "cli/options.h"

namespace quillane::cli {

// Each returns the exit status: 0 success, 1 error.
int RunList(const Command& cmd);
int RunSave(const Command& cmd);
int RunRender(const Command& cmd);
int RunBench(const Command& cmd);
// Draws the working IFS of `wb` as render does, from the colour options on; the list options of `r`
// are not used.
int DrawWorkingIFS(Workbench& wb, CliHost& host, const RenderOptions& r);

}  // namespace quillane::cli
