#pragma once
// The mouse and key state machine of picdesign in IFS mode: picking, moving, resizing by handles,
// rotating and shearing with Ctrl, the arrow-key nudges, and their commits. Polygon drawing and the
// chaos game have gestures of their own; the window sends them elsewhere. The arithmetic is in
// gesture_math; this file keeps the state between events and redraws.
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "design/gesture_math.h"

namespace quillane {

inline constexpr int KeyCtrl17 = 17;
inline constexpr int KeyAlt18 = 18;

struct DesignGesture {
    bool MouseIsDown = false;
    int HandleId = 0;
    float pressX = 0, pressY = 0;
    BoundingBox box;  // of the selected map at the press, frozen until the release
    bool MouseMoved = false;
    bool Rotating = false;
    bool Shearing = false;
    bool EqualResize = false;
    RotationStart rotation;

    // Keyboard gestures: the accumulated angles, and which held modifier changed the map.
    double KeyRotation = 0, KeyShearV = 0, KeyShearH = 0;
    BoundingBox keyBox;  // of the selected map when the keyboard gesture began
    bool keyRotated = false, keyMoved = false, keySheared = false;

    // The last mouse position, for the cursor exchange on Ctrl.
    float mouseX = 0, mouseY = 0;
    DesignCursor cursor = DesignCursor::Normal;
};

// Left button down at (x, y); Shift the mask (1 Shift, 2 Ctrl, 4 Alt). Returns the cursor.
DesignCursor DesignMouseDown(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y, int Shift);
// The mouse at (x, y), with or without the left button held. picCoord shows the position or the
// gesture's text. Returns the cursor.
DesignCursor DesignMouseMove(Workbench& wb, DesignPictures& d, DesignGesture& g, float x, float y, int Shift,
                             bool ButtonDown);
// Left button up: the selection redrawn, and the commit when the gesture changed something.
DesignCursor DesignMouseUp(Workbench& wb, DesignPictures& d, DesignGesture& g);

// Shift, Ctrl or Alt with an arrow key: True when the key was used.
bool GestureKeyDown(Workbench& wb, DesignPictures& d, DesignGesture& g, int KeyCode, int Shift);
// Key up. The modifier that drove a keyboard gesture ends it with one commit; Shift is the mask of
// the modifiers still held. True when something changed on the screen.
bool GestureKeyUp(Workbench& wb, DesignPictures& d, DesignGesture& g, int KeyCode, int Shift);
// Ctrl pressed (true) or released while the mouse rests on picdesign: the cursor with or without the
// Ctrl column, or nothing when the exchange does not apply.
std::optional<DesignCursor> CtrlCursor(const Workbench& wb, const DesignPictures& d, const DesignGesture& g,
                                       bool pressed);

}  // namespace quillane
