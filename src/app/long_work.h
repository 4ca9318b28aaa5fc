// The ports of long work: how far it is, the windows that paint meanwhile, and the hourglass.
#pragma once

namespace kelvo::app {

// Shows how far work is.
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

// Lets the windows paint.
class ProcessEvents {
 public:
  virtual ~ProcessEvents() = default;
  // Cheap enough to be called often. User input stays waiting.
  virtual void Process() = 0;
};

// The pointer while the program is busy.
class WaitPointer {
 public:
  virtual ~WaitPointer() = default;
  virtual void Show() = 0;
  virtual void Hide() = 0;
};

// Shows the hourglass for as long as it lives.
class WaitScope {
 public:
  explicit WaitScope(WaitPointer& pointer) : pointer_(pointer) { pointer_.Show(); }
  ~WaitScope() { pointer_.Hide(); }
  WaitScope(const WaitScope&) = delete;
  WaitScope& operator=(const WaitScope&) = delete;

 private:
  WaitPointer& pointer_;
};

}  // namespace kelvo::app
