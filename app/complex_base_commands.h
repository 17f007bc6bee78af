#pragma once
// Fractals derived from Complex Bases: a base w of modulus below 1 becomes the two maps z -> w z and
// z -> w z + w. The base method draws the set itself, and takes over PlayGame's loop for it.
#include <string>

#include "app/app_state.h"
#include "core/host.h"
#include "generators/complex_base.h"

namespace quillane {

inline constexpr const char* ComplexCaption = "Fractals derived from Complex Bases";
inline constexpr const char* ComplexAError = "Cannot evaluate expression for a  ";
inline constexpr const char* ComplexBError = "Cannot evaluate expression for b  ";
inline constexpr const char* ComplexModulusError = "The complex base must have modulus less than 1.  ";
inline constexpr const char* ComplexModulusLine = "Your modulus is ";
inline constexpr const char* ComplexIFSColorCaption = "Use IFS colors";
inline constexpr const char* ComplexIFSOneColorCaption = "Use IFS(1) color";
inline constexpr const char* ComplexBaseCaption = "Fractal";
inline constexpr const char* ComplexHelpTopic = "howtocreatecomplexbasedesign.html";

struct ComplexForm {
    bool polar = false;  // opt2; else opt1
    std::string txta = "0.65", txtb = "-0.3";
    bool optDrawBase = false;    // else optDrawRegular
    bool optPixelColor = false;  // else optIFScolor
    int ExampleIndex = 0;
};

// cmdExample: the next of the six examples into the form; nothing is built.
void ComplexNextExample(ComplexForm& form);

// What the colour options show for the drawing method.
struct ComplexColorOptions {
    bool pixelColorVisible;
    std::string ifsColorCaption;
    bool warningVisible;
};
ComplexColorOptions ComplexColorOptionsFor(bool optDrawBase);

enum class ComplexFocus { None, A, B };

// cmdCreate: reads the boxes, checks the modulus and builds the maps into CurrentIFS, then makes the
// chosen method the drawing source. Returns the box to focus when refused (nothing changed).
ComplexFocus ComplexCreate(AppState& s, Host& host, const ComplexForm& form);

// optDrawBase / optDrawRegular clicked: once built, the method changes and the picture is cleared.
void ComplexChooseMethod(AppState& s, Host& host, bool optDrawBase);
// optIFScolor / optPixelColor clicked.
void ComplexChooseColor(AppState& s, bool optPixelColor);

// Whether the base method is the drawing source now.
bool ComplexBaseSource(const AppState& s);

// The window's part of cmdClose and cmdCancel (before the run's own): the drawing loop is given back,
// the Draw type items enabled and the fractal window's title follows the drawing type again.
void ComplexRelease(AppState& s);

}  // namespace quillane
