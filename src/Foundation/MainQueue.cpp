#include "Foundation/MainQueue.h"

#include <utility>

void MainQueue::async(Job job) {
  _jobs.push_back(std::move(job));
  schedule();
}

MainQueue::Hold::Hold(MainQueue &queue) : _queue(queue) {
  ++_queue._holds;
}

MainQueue::Hold::~Hold() {
  if (--_queue._holds == 0) _queue.schedule();
}

void MainQueue::schedule() {
  if (_isScheduled || _holds > 0 || _jobs.empty()) return;
  _isScheduled = true;
  QMetaObject::invokeMethod(this, &MainQueue::runJobs, Qt::QueuedConnection);
}

void MainQueue::runJobs() {
  _isScheduled = false;
  // Jobs that are queued by these jobs run in a later turn. A job that runs the event loop, as a dialog
  // does, may already have caused the remaining jobs to run.
  for (std::size_t count = _jobs.size(); count > 0 && !_jobs.empty() && _holds == 0; --count) {
    const Job job = std::move(_jobs.front());
    _jobs.pop_front();
    job();
  }
  schedule();
}
