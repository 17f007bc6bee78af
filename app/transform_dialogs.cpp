#include "app/transform_dialogs.h"

#include "core/evaluator.h"

namespace quillane {

namespace {

template <class T>
bool refuse(DialogCheck<T>& verdict, const char* message, int box) {
    verdict.message = message;
    verdict.box = box;
    return false;
}

template <class T>
bool number(const std::string& text, float& out, const char* message, int box, DialogCheck<T>& verdict) {
    const std::optional<float> v = EvaluateText(text);
    if (!v) return refuse(verdict, message, box);
    out = *v;
    return true;
}

template <class T>
bool positive(float v, int box, DialogCheck<T>& verdict) {
    return v > 0 || refuse(verdict, PositiveScaleMessage, box);
}

template <class T>
bool shearRange(float v, int box, DialogCheck<T>& verdict) {
    return (v > -90 && v < 90) || refuse(verdict, ShearRangeMessage, box);
}

}  // namespace

DialogCheck<float> CheckScaleDialog(const std::string& txtScale) {
    DialogCheck<float> v;
    float s = 0;
    if (number(txtScale, s, ScalePercentNotNumber, 0, v) && positive(s, 0, v)) v.value = s;
    return v;
}

DialogCheck<double> CheckRotateDialog(const std::string& txtRotate, int optDirection) {
    DialogCheck<double> v;
    float angle = 0;
    if (number(txtRotate, angle, RotationAngleNotNumber, 0, v)) v.value = optDirection == 1 ? -angle : angle;
    return v;
}

DialogCheck<SkewValues> CheckSkewDialog(const SkewDialogText& t) {
    DialogCheck<SkewValues> v;
    SkewValues s;
    if (number(t.txtStrHori, s.StrHori, StretchHoriNotNumber, 0, v) && positive(s.StrHori, 0, v) &&
        number(t.txtStrVert, s.StrVert, StretchVertNotNumber, 1, v) && positive(s.StrVert, 1, v) &&
        number(t.txtSkewHori, s.SkewHori, ShearHoriNotNumber, 2, v) && shearRange(s.SkewHori, 2, v) &&
        number(t.txtSkewVert, s.SkewVert, ShearVertNotNumber, 3, v) && shearRange(s.SkewVert, 3, v))
        v.value = s;
    return v;
}

}  // namespace quillane
