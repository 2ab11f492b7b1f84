#pragma once

// Jobs that run in order from the event loop, after whoever queued them has returned.

#include <QObject>
#include <deque>
#include <functional>

class MainQueue : public QObject {
 public:
  using Job = std::function<void()>;

  /// Returns at once; the job runs on this thread when the event loop is next free and nobody holds
  /// the queue.
  void async(Job job);

  /// While one of these lives, jobs wait, also when an event loop turns.
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
