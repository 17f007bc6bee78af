#include "core/ifs_entry.h"

namespace quillane {

IFSFunction IFSEntry::function(int i) const {
    IFSFunction fn;
    fn.a = a[i];
    fn.b = b[i];
    fn.c = c[i];
    fn.d = d[i];
    fn.e = e[i];
    fn.f = f[i];
    fn.p = p[i];
    for (int k = 1; k <= 4; ++k) fn.Step[k] = Step[k][i];
    fn.Scale = Scale[i];
    fn.Angle = Angle[i];
    fn.Prob = Prob[i];
    fn.FPx = FPx[i];
    fn.FPy = FPy[i];
    return fn;
}

void IFSEntry::setFunction(int i, const IFSFunction& fn) {
    StoreCoefficients(*this, i, fn);
    p[i] = fn.p;
    for (int k = 1; k <= 4; ++k) Step[k][i] = fn.Step[k];
    Scale[i] = fn.Scale;
    Angle[i] = fn.Angle;
    Prob[i] = fn.Prob;
    FPx[i] = fn.FPx;
    FPy[i] = fn.FPy;
}

void CopyCoefficients(IFSFunction& to, const IFSFunction& from) {
    to.a = from.a;
    to.b = from.b;
    to.c = from.c;
    to.d = from.d;
    to.e = from.e;
    to.f = from.f;
}

void StoreCoefficients(IFSEntry& ifs, int i, const IFSFunction& m) {
    ifs.a[i] = m.a;
    ifs.b[i] = m.b;
    ifs.c[i] = m.c;
    ifs.d[i] = m.d;
    ifs.e[i] = m.e;
    ifs.f[i] = m.f;
}

void InitializeIFS(IFSEntry& ifs) {
    ifs = IFSEntry{};
    ifs.Name = "Untitled";
    ifs.nMaps = 1;
    ifs.a[0] = 0.5f;
    ifs.d[0] = 0.5f;
    ifs.p[0] = 1.0f;
    ifs.Step[1][0] = "S";
    ifs.Scale[0] = 0.5f;
    ifs.Prob[0] = 1.0f;
    ifs.nComments = 0;
    ifs.HasChaosGame = True16;
}

IFSEntry DefaultIFS() {
    IFSEntry ifs;
    InitializeIFS(ifs);
    return ifs;
}

}  // namespace quillane
