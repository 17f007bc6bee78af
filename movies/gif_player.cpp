#include "movies/gif_player.h"

#include <algorithm>

namespace quillane {

void AniGifPlayer::clear() {
    stopTimer();
    gif_ = GifFile{};
    canvas_.reset(nullptr, back_);
    file_.clear();
    current_ = 0;
    state_ = PlayState::Stopped;
    loops_ = loopsRemaining_ = 0;
}

bool AniGifPlayer::LoadAnimatedGIF_File(const std::string& path) {
    clear();
    gif_ = ReadGifFile(path);
    return loaded(path);
}

bool AniGifPlayer::LoadAnimatedGIF_Array(std::vector<uint8_t> bytes) {
    clear();
    gif_ = ReadGifBytes(std::move(bytes));
    return loaded("");
}

bool AniGifPlayer::loaded(const std::string& name) {
    if (gif_.empty()) {
        clear();
        return false;
    }
    file_ = name;
    loops_ = loopsRemaining_ = gif_.Loops;
    canvas_.reset(&gif_, back_);
    current_ = 1;
    if (enabled_ && onFrame) onFrame(1);
    return true;
}

void AniGifPlayer::setLoops(int32_t n) {
    loops_ = std::max(n, 0);
    loopsRemaining_ = loops_;
}

void AniGifPlayer::setSteppedDelay(int32_t ms) {
    steppedDelay_ = std::max(ms, 0);
    if (timerOn_) interval_ = frameInterval();
}

void AniGifPlayer::setBackColor(Color c) {
    back_ = c;
    if (current_ > 0) {
        canvas_.reset(&gif_, back_);
        if (onRepaint) onRepaint();
    }
}

const RasterSurface& AniGifPlayer::picture() {
    return current_ > 0 ? canvas_.frame(current_) : canvas_.picture();
}

int32_t AniGifPlayer::frameInterval() const {
    if (steppedDelay_ != 0) return steppedDelay_;
    const int32_t delay = current_ > 0 ? gif_.Frames[static_cast<size_t>(current_ - 1)].Delay : 0;
    return std::max(delay, minFrameDelay_);
}

void AniGifPlayer::startTimer() {
    if (FrameCount() <= 1 || state_ == PlayState::Playing) return;
    if (delayAnimation_) {
        interval_ = 20;
    } else {
        state_ = PlayState::Playing;
        interval_ = frameInterval();
    }
    timerOn_ = true;
}

void AniGifPlayer::showFrame(int32_t n, bool raise) {
    current_ = n;
    if (onRepaint) onRepaint();
    if (raise && onFrame) onFrame(n);
}

void AniGifPlayer::setAction(int value) {
    if (current_ == 0 || !running_) return;
    lastAction_ = value;
    const int32_t last = FrameCount();
    switch (value) {
        case 0:
            stopTimer();
            state_ = PlayState::Stopped;
            loopsRemaining_ = loops_;
            showFrame(1);
            break;
        case 1:
            if (current_ == last) {
                setAction(0);
                lastAction_ = 1;
            } else if (state_ == PlayState::Stopped) {
                showFrame(1);
            }
            startTimer();
            break;
        case 2:
            if (state_ == PlayState::Stopped) break;
            stopTimer();
            state_ = PlayState::Paused;
            if (onFrame) onFrame(current_);
            break;
        case 3:
            stopTimer();
            state_ = PlayState::Paused;
            showFrame(current_ >= last ? 1 : current_ + 1);
            break;
        case 4:
            stopTimer();
            loopsRemaining_ = loops_;
            showFrame(1);
            startTimer();
            break;
        case 5:
            stopTimer();
            state_ = PlayState::Paused;
            showFrame(current_ <= 1 ? last : current_ - 1);
            break;
        default:
            break;
    }
}

void AniGifPlayer::tick() {
    if (!timerOn_ || current_ == 0) return;
    if (state_ != PlayState::Playing) {
        // The first beat after a delayed start.
        state_ = PlayState::Playing;
        interval_ = frameInterval();
        return;
    }
    if (current_ < FrameCount()) {
        showFrame(current_ + 1);
    } else if (loops_ == 0) {
        showFrame(1);
    } else if (--loopsRemaining_ > 0) {
        showFrame(1);
    } else {
        stopTimer();
        state_ = PlayState::Stopped;
        loopsRemaining_ = loops_;
        if (onFrame) onFrame(current_);
    }
    interval_ = frameInterval();
}

}  // namespace quillane
