// The port through which long work shows how far it is.
#pragma once

namespace kelvo::app {

class Progress {
 public:
  virtual ~Progress() = default;
  virtual void Begin(int last) = 0;     // shows a bar from 0 to `last`
  virtual void Advance(int value) = 0;  // a fixed point of the work: pending window events may run
  virtual void End() = 0;
};

// For work that nobody watches.
class NoProgress final : public Progress {
 public:
  void Begin(int) override {}
  void Advance(int) override {}
  void End() override {}
};

// Begins on construction and ends when it goes out of scope, whatever happens in between.
class ProgressScope {
 public:
  ProgressScope(Progress& progress, int last) : progress_(progress) { progress_.Begin(last); }
  ~ProgressScope() { progress_.End(); }
  ProgressScope(const ProgressScope&) = delete;
  ProgressScope& operator=(const ProgressScope&) = delete;

 private:
  Progress& progress_;
};

}  // namespace kelvo::app
