// The fake reports what would go wrong unseen, or far from its cause, on a Mac.

#include <DiskArbitration/DiskArbitration.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/storage/IOMedia.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "macos/fake/Fake.h"

namespace {

struct Fault {
  void (*commit)();
  const char *report;
};

const Fault kFaults[] = {
    {[] { DASessionCreate(kCFAllocatorDefault); },
     "DASession \"\" (made by DASessionCreate), 1 too many"},
    {[] {
       const DASessionRef session = DASessionCreate(kCFAllocatorDefault);
       CFRelease(session);
       CFRelease(session);
     },
     "CFRelease was given DASession \"\" (made by DASessionCreate), which is gone"},
    {[] { CFRelease(nullptr); }, "CFRelease was given NULL"},
    {[] { CFArrayGetCount(reinterpret_cast<CFArrayRef>(kCFBooleanTrue)); }, "which is no CFArray"},
    {[] {
       const CFMutableDictionaryRef matching = IOServiceMatching(kIOMediaClass);
       io_iterator_t media = 0;
       IOServiceGetMatchingServices(kIOMainPortDefault, matching, &media);
       IOObjectRelease(media);
       CFRelease(matching);
     },
     "(made by IOServiceMatching), which is gone"},
    {[] {
       const DASessionRef session = DASessionCreate(kCFAllocatorDefault);
       DASessionScheduleWithRunLoop(session, CFRunLoopGetCurrent(), kCFRunLoopCommonModes);
       CFRelease(session);
     },
     "while it was scheduled in kCFRunLoopCommonModes"},
    {[] { CFRunLoopStop(CFRunLoopGetCurrent()); }, "CFRunLoopStop while nothing runs the loop"},
    {CFRunLoopRun, "that nothing is left to stop"},
};

}  // namespace

TEST(Fake, reportsFaults) {
  for (const Fault &each : kFaults) {
    EXPECT_NONFATAL_FAILURE(
        {
          fake::Machine mac;
          mac.patience = std::chrono::milliseconds(20);
          each.commit();
        },
        each.report);
  }
}
