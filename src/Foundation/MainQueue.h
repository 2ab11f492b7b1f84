#pragma once

// Jobs that run in order from the event loop, after the caller that queued them has returned.

#include <QObject>
#include <deque>
#include <functional>

class MainQueue : public QObject {
 public:
  using Job = std::function<void()>;

  /// Returns at once. The job runs on this thread when the event loop is next free and no `Hold`
  /// exists.
  void async(Job job);

  /// While an object of this class exists, jobs wait, even when an event loop runs.
  class Hold {
   public:
    explicit Hold(MainQueue &queue);
    ~Hold();
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;

   private:
    MainQueue &_queue;
  };

 private:
  void schedule();
  void runJobs();

  std::deque<Job> _jobs;
  int _holds = 0;
  bool _isScheduled = false;
};
