#pragma once
// The animated GIF player's logic (ucAniGIF): the loaded file, the play state and what each Action
// does. The widget that shows it owns the timer: it asks for `timerInterval()` while `timerRunning()`
// and calls `tick()` on each beat.
#include <cstdint>
#include <functional>
#include <string>

#include "movies/gif_decoder.h"
#include "movies/gif_reader.h"

namespace quillane {

enum class PlayState { Stopped = 0, Playing = 1, Paused = 2 };

class AniGifPlayer {
  public:
    // Frees what was loaded, then reads the file. False, and the player empty, for a file that is not
    // a GIF or has no frames.
    bool LoadAnimatedGIF_File(const std::string& path);
    bool LoadAnimatedGIF_Array(std::vector<uint8_t> bytes);
    void clear();

    const std::string& AnimatedGIF() const { return file_; }
    int32_t CurrentFrame() const { return current_; }
    int32_t FrameCount() const { return static_cast<int32_t>(gif_.Frames.size()); }
    int32_t ActualWidth() const { return gif_.CanvasWidth; }
    int32_t ActualHeight() const { return gif_.CanvasHeight; }
    const GifFile& file() const { return gif_; }

    int32_t Loops() const { return loops_; }
    void setLoops(int32_t n);
    int32_t LoopsRemaining() const { return loopsRemaining_; }
    int32_t SteppedDelay() const { return steppedDelay_; }
    void setSteppedDelay(int32_t ms);
    int32_t MinFrameDelay() const { return minFrameDelay_; }
    void setMinFrameDelay(int32_t ms) { minFrameDelay_ = ms < 0 ? 0 : ms; }
    bool DelayAnimation() const { return delayAnimation_; }
    void setDelayAnimation(bool on) { delayAnimation_ = on; }
    bool Enabled() const { return enabled_; }
    void setEnabled(bool on) { enabled_ = on; }
    bool Stretch() const { return stretch_; }
    void setStretch(bool on) { stretch_ = on; }
    bool AutoSize() const { return autoSize_; }
    void setAutoSize(bool on) { autoSize_ = on; }
    Color BackColor() const { return back_; }
    void setBackColor(Color c);
    // False while the control is not running in its window: actions then do nothing.
    void setRunning(bool on) { running_ = on; }

    int Action() const { return lastAction_; }
    void setAction(int value);
    PlayState state() const { return state_; }

    bool timerRunning() const { return timerOn_; }
    int32_t timerInterval() const { return interval_; }
    // One beat of the timer: the next frame, or the end of a loop.
    void tick();

    // The picture of the present frame, composed on the canvas.
    const RasterSurface& picture();
    // Raised with the frame number on every change of frame.
    std::function<void(int32_t)> onFrame;
    // Asked to repaint.
    std::function<void()> onRepaint;

  private:
    bool loaded(const std::string& name);
    void startTimer();
    void stopTimer() { timerOn_ = false; }
    void showFrame(int32_t n, bool raise = true);
    int32_t frameInterval() const;

    GifFile gif_;
    GifCanvas canvas_;
    std::string file_;
    int32_t current_ = 0;
    PlayState state_ = PlayState::Stopped;
    int32_t loops_ = 0, loopsRemaining_ = 0;
    int32_t steppedDelay_ = 0, minFrameDelay_ = 0;
    bool delayAnimation_ = false, enabled_ = true, stretch_ = false, autoSize_ = false, running_ = true;
    Color back_ = White;
    int lastAction_ = 0;
    bool timerOn_ = false;
    int32_t interval_ = 0;
};

}  // namespace quillane
