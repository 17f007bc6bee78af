#pragma once
// Design > Colors: the design window's background and axis colours, kept in the settings.
namespace quillane {

class Host;
class Workbench;
struct DesignPictures;

// mnuDesignColorsBack: the colour dialog; the new colour is the background of picdesign,
// picCGDesign and picImage, the design is redrawn and the settings marked changed. False on Cancel.
bool mnuDesignColorsBack_Click(Workbench& wb, DesignPictures& d, Host& host);
// mnuDesignColorsAxes: the same for the colour the axes are drawn in.
bool mnuDesignColorsAxes_Click(Workbench& wb, DesignPictures& d, Host& host);

}  // namespace quillane
