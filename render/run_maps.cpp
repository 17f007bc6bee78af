#include "render/run_maps.h"

#include <algorithm>

namespace quillane {

RunMaps CopyRunMaps(const Workbench& wb) {
    RunMaps m;
    m.n = std::min(wb.mapsFromText(), MaxMaps);
    const IFSEntry& ifs = wb.CurrentIFS;
    for (int i = 0; i < m.n; ++i) {
        m.a[i] = ifs.a[i];
        m.b[i] = ifs.b[i];
        m.c[i] = ifs.c[i];
        m.d[i] = ifs.d[i];
        m.e[i] = ifs.e[i];
        m.f[i] = ifs.f[i];
        m.p[i] = ifs.p[i];
        m.color[i] = wb.FunctionColor[static_cast<size_t>(i)];
    }
    return m;
}

}  // namespace quillane
