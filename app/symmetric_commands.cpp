#include "app/symmetric_commands.h"

#include "app/design_view.h"
#include "core/evaluator.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/undo_menu.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

struct BaseRead {
    IFSFunction map;
    SymmetricFocus failed = SymmetricFocus::None;
};

BaseRead readBase(const SymmetricForm& form, Host& host) {
    BaseRead r;
    float* slots[4] = {&r.map.a, &r.map.b, &r.map.c, &r.map.d};
    for (int k = 0; k < 4; ++k) {
        const auto v = EvaluateText(form.txtMatrix[static_cast<size_t>(k)]);
        if (!v) {
            host.warn("Error", SymmetricMatrixError);
            r.failed = static_cast<SymmetricFocus>(static_cast<int>(SymmetricFocus::MatrixA) + k);
            return r;
        }
        *slots[k] = *v;
    }
    const auto e = EvaluateText(form.txtE);
    if (!e) {
        host.warn("Error", SymmetricEError);
        r.failed = SymmetricFocus::E;
        return r;
    }
    const auto f = EvaluateText(form.txtF);
    if (!f) {
        host.warn("Error", SymmetricFError);
        r.failed = SymmetricFocus::F;
        return r;
    }
    r.map.e = *e;
    r.map.f = *f;
    return r;
}

}  // namespace

std::vector<std::string> MakeFractalList(const Workbench& wb) {
    std::vector<std::string> names;
    for (int n = 1; n <= wb.ListCount(); ++n) names.push_back(wb.menu(EntryKey(n)).caption);
    return names;
}

SymmetricFocus SymmetricCreate(AppState& s, Host& host, const SymmetricForm& form) {
    Workbench& wb = s.wb;
    if (form.group == SymmetryGroup::Dihedral && 2 * form.n > MaxMaps) {
        host.warn("Error", SymmetricDihedralLimit + std::to_string(MaxMaps / 2));
        return SymmetricFocus::Order;
    }
    IFSEntry built;
    if (form.useList) {
        const int entry = form.cmbIFSList + 1;
        if (entry < 1 || entry >= static_cast<int>(wb.FractalList.size()) || entry > wb.ListCount())
            return SymmetricFocus::None;
        const IFSEntry& source = wb.FractalList[static_cast<size_t>(entry)];
        if (source.nMaps < 1) return SymmetricFocus::None;
        const auto maps = SymmetricFromIFS(source, form.group, form.n);
        if (!maps) {
            host.warn("Warning",
                      SymmetricOrderLimit + std::to_string(LargestOrder(form.group, source.nMaps)));
            return SymmetricFocus::Order;
        }
        built = *maps;
    } else {
        const BaseRead base = readBase(form, host);
        if (base.failed != SymmetricFocus::None) return base.failed;
        built = SymmetricFromBase(base.map, form.group, form.n);
    }
    built.Name = "Untitled";
    built.nComments = 0;
    wb.CurrentIFS = built;
    wb.lblComment.clear();
    s.Generator.SetupDone = true;
    SetUpFunctions(wb, host, built.nMaps);
    ShowFunctionForm(wb, RotationItem, 1);
    if (!wb.RandomMode) ResetDeterministic(wb, s.pics, host);
    wb.FunctionsCaption = FunctionsCaptionFor("Untitled");
    for (int i = 5; i < wb.NamesItemCount; ++i) wb.Menu.setChecked(NamesKey(i), false);
    ResetUndoMenu(wb);
    // The group turns the maps about the origin: the views follow the new attractor.
    setscale(wb, host, true, &s.pics);
    DesignScale(wb, s.design);
    GeneratorBuilt(s.Generator);
    return SymmetricFocus::None;
}

}  // namespace quillane
