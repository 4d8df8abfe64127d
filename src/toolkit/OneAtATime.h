#pragma once

#include <functional>
#include <memory>

/// Keeps a step that pumps events from being entered while it runs: a call in the meantime makes it
/// run once more at its end. It may be destroyed while the step runs; then that was the last run.
class OneAtATime {
 public:
  OneAtATime() = default;
  ~OneAtATime() { state_->gone = true; }
  OneAtATime(const OneAtATime &) = delete;
  OneAtATime &operator=(const OneAtATime &) = delete;

  void Run(const std::function<void()> &step) {
    const std::shared_ptr<State> state = state_;
    if (state->running) {
      state->again = true;
      return;
    }
    state->running = true;
    do {
      state->again = false;
      step();
    } while (state->again && !state->gone);
    state->running = false;
  }

 private:
  struct State {
    bool running = false;
    bool again = false;
    bool gone = false;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};
