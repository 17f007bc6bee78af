#pragma once
#include "cli/options.h"

namespace quillane::cli {

// Each returns the exit status: 0 success, 1 error.
int RunList(const Command& cmd);
int RunSave(const Command& cmd);
int RunRender(const Command& cmd);
int RunBench(const Command& cmd);

}  // namespace quillane::cli
