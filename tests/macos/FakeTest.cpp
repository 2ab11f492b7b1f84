// The fake reports what would go wrong unseen, or far from its cause, on a Mac; and it lets nothing
// through that a Mac would hold back.

#include <Block.h>
#include <CoreFoundation/CoreFoundation.h>
#include <DiskArbitration/DiskArbitration.h>
#include <IOKit/IOKitLib.h>
#include <IOKit/storage/IOMedia.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <objc/message.h>
#include <objc/runtime.h>

#include <QCoreApplication>
#include <QTimer>
#include <functional>

#include "macos/fake/Fake.h"

namespace {

CFStringRef makeText(const std::string &text) {
  return CFStringCreateWithBytes(kCFAllocatorDefault,
                                 reinterpret_cast<const unsigned char *>(text.data()),
                                 static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false);
}

std::string bytesOf(CFStringRef text) {
  char buffer[40] = "";
  CFStringGetCString(text, buffer, sizeof buffer, kCFStringEncodingUTF8);
  return buffer;
}

/// A session that is scheduled, and disk0s1 in it.
struct Client {
  explicit Client(CFStringRef scheduledMode = kCFRunLoopDefaultMode) : mode(scheduledMode) {
    DASessionScheduleWithRunLoop(session, CFRunLoopGetCurrent(), mode);
  }
  ~Client() {
    CFRelease(disk);
    DASessionUnscheduleFromRunLoop(session, CFRunLoopGetCurrent(), mode);
    CFRelease(session);
  }

  void mount(DADiskMountCallback callback, void *context = nullptr) const {
    DADiskMountWithArguments(disk, nullptr, kDADiskMountOptionDefault, callback, context, nullptr);
  }

  CFStringRef mode;
  DASessionRef session = DASessionCreate(kCFAllocatorDefault);
  DADiskRef disk = DADiskCreateFromBSDName(kCFAllocatorDefault, session, "disk0s1");
};

void stop(DADiskRef, DADissenterRef, void *) {
  CFRunLoopStop(CFRunLoopGetCurrent());
}

void rememberStatus(DADiskRef, DADissenterRef dissenter, void *status) {
  *static_cast<std::optional<DAReturn> *>(status) =
      dissenter == nullptr ? kDAReturnSuccess : DADissenterGetStatus(dissenter);
}

void countDisk(DADiskRef, void *count) {
  ++*static_cast<int *>(count);
}

void noteKeys(DADiskRef, CFArrayRef keys, void *texts) {
  for (CFIndex index = 0; index < CFArrayGetCount(keys); ++index) {
    const auto key = static_cast<CFStringRef>(CFArrayGetValueAtIndex(keys, index));
    static_cast<std::vector<std::string> *>(texts)->push_back(bytesOf(key));
  }
}

CFDictionaryRef descriptionOf(const Client &client) {
  return DADiskCopyDescription(client.disk);
}

io_iterator_t mediaIterator(CFMutableDictionaryRef matching) {
  io_iterator_t iterator = 0;
  IOServiceGetMatchingServices(kIOMainPortDefault, matching, &iterator);
  return iterator;
}

struct Block {
  void *isa;
  int flags;
  int reserved;
  void (*invoke)(Block *self, id event);
  const struct Descriptor *descriptor;
  int *count;
};

struct Descriptor {
  unsigned long reserved;
  unsigned long size;
};

constexpr Descriptor kDescriptor{0, sizeof(Block)};
constexpr unsigned long long kKeyUpMask = 1ULL << 11;

/// The handler's block is on the stack, and not there any more when the handler is called.
id addCountingMonitor(int *count) {
  Block block{_NSConcreteStackBlock, 0,    0, [](Block *self, id) { ++*self->count; },
              &kDescriptor,          count};
  const auto send = reinterpret_cast<id (*)(Class, SEL, unsigned long long, void *)>(objc_msgSend);
  return send(objc_getClass("NSEvent"),
              sel_registerName("addGlobalMonitorForEventsMatchingMask:handler:"), kKeyUpMask,
              &block);
}

void removeMonitor(id token) {
  const auto send = reinterpret_cast<void (*)(Class, SEL, id)>(objc_msgSend);
  send(objc_getClass("NSEvent"), sel_registerName("removeMonitor:"), token);
}

struct Fault {
  std::string name;
  std::function<void()> commit;
  std::string report;
};

void PrintTo(const Fault &fault, std::ostream *out) {
  *out << fault.name;
}

const Fault kFaults[] = {
    {"Leak", [] { makeText("disk0"); }, "CFString \"disk0\" (made by CFStringCreateWithBytes)"},
    {"LeakOfAKernelObject",
     [] {
       const io_iterator_t media = mediaIterator(IOServiceMatching(kIOMediaClass));
       IOIteratorNext(media);
       IOObjectRelease(media);
     },
     "io_registry_entry \"disk0s1\" (made by IOIteratorNext), 1 too many"},
    {"LeakOfAMonitor", [] { addCountingMonitor(nullptr); }, "an event monitor"},
    {"OverRelease",
     [] {
       const CFStringRef text = makeText("disk0");
       CFRelease(text);
       CFRelease(text);
     },
     "CFRelease was given CFString \"disk0\" (made by CFStringCreateWithBytes), which is gone"},
    {"ReleaseOfWhatIsNotOwned",
     [] {
       const CFDictionaryRef description = descriptionOf(Client());
       CFRelease(CFDictionaryGetValue(description, kDADiskDescriptionMediaNameKey));
       CFRelease(description);
     },
     "CFString \"EFI System Partition\" (made by DADiskCopyDescription) was released once too "
     "often"},
    {"ReleaseOfWhatTheCallHasConsumed",
     [] {
       const CFMutableDictionaryRef matching = IOServiceMatching(kIOMediaClass);
       IOObjectRelease(mediaIterator(matching));
       CFRelease(matching);
     },
     "(made by IOServiceMatching), which is gone"},
    {"UseOfWhatIsGone",
     [] {
       const CFStringRef text = makeText("disk0");
       CFRelease(text);
       CFStringGetLength(text);
     },
     "CFStringGetLength was given CFString \"disk0\""},
    {"Null", [] { CFRelease(nullptr); }, "CFRelease was given NULL"},
    {"WrongType", [] { CFArrayGetCount(reinterpret_cast<CFArrayRef>(kCFBooleanTrue)); },
     "which is no CFArray"},
    {"SessionGoneWhileScheduled",
     [] {
       const DASessionRef session = DASessionCreate(kCFAllocatorDefault);
       DASessionScheduleWithRunLoop(session, CFRunLoopGetCurrent(), kCFRunLoopCommonModes);
       CFRelease(session);
     },
     "while it was scheduled in kCFRunLoopCommonModes"},
    {"StopInsideTheCall",
     [] {
       fake::Machine::current().onMount("disk0s1") = fake::refusedInside(0xF8DA0009);
       Client().mount(stop);
     },
     "CFRunLoopStop while nothing runs the loop"},
    {"LostStop",
     [] {
       std::optional<DAReturn> status;
       const Client client;
       client.mount(rememberStatus, &status);
       CFRunLoopRun();
     },
     "that nothing is left to stop"},
};

class Faults : public testing::TestWithParam<Fault> {};

constexpr char kVolume[] = "/Volumes/EFI";

void plugPartition(fake::Machine &mac) {
  mac.plug("disk0s1", {{"DAMediaName", "EFI System Partition"}, {"DAVolumeKind", "msdos"}});
}

}  // namespace

TEST_P(Faults, areReported) {
  EXPECT_NONFATAL_FAILURE(
      {
        fake::Machine mac;
        mac.patience = std::chrono::milliseconds(20);
        plugPartition(mac);
        GetParam().commit();
      },
      GetParam().report);
}

INSTANTIATE_TEST_SUITE_P(Seeded, Faults, testing::ValuesIn(kFaults),
                         [](const auto &fault) { return fault.param.name; });

TEST(Fake, answersWhenTheTestSaysSo) {
  using When = fake::Answer::When;
  const struct {
    fake::Answer answer;
    bool isInside;
    std::optional<DAReturn> status;
  } cases[] = {{{}, false, kDAReturnSuccess},
               {{When::InsideTheCall, 0}, true, kDAReturnSuccess},
               {fake::refusedInside(0xF8DA0009), true, kDAReturnNotPrivileged},
               {fake::refused(0xF8DA0002), false, kDAReturnBusy},
               {{When::WhenTheDiskHasVanished, 0}, false, kDAReturnNotFound},
               {{When::Never, 0}, false, std::nullopt}};
  for (const auto &each : cases) {
    fake::Machine mac;
    plugPartition(mac);
    mac.onMount("disk0s1") = each.answer;
    const Client client;
    std::optional<DAReturn> status;
    client.mount(rememberStatus, &status);
    EXPECT_EQ(status.has_value(), each.isInside);
    fake::serve();
    EXPECT_EQ(status, each.status);
    EXPECT_EQ(mac.mountPoint("disk0s1").has_value(), status == kDAReturnSuccess);
  }
}

TEST(Fake, servesQtInARunAndIsServedByQt) {
  fake::Machine mac;
  plugPartition(mac);
  const Client client;
  client.mount(stop);
  CFRunLoopRun();
  QTimer::singleShot(0, [] { CFRunLoopStop(CFRunLoopGetCurrent()); });
  CFRunLoopRun();
  int count = 0;
  DARegisterDiskAppearedCallback(client.session, nullptr, countDisk, &count);
  QCoreApplication::processEvents();
  EXPECT_EQ(count, 1);
}

TEST(Fake, deliversInTheModesThatTheSessionIsScheduledFor) {
  fake::Machine mac;
  plugPartition(mac);
  const Client waiting(kCFRunLoopDefaultMode);
  const Client watching(kCFRunLoopCommonModes);
  int waitingCount = 0;
  int watchingCount = 0;
  DARegisterDiskAppearedCallback(waiting.session, nullptr, countDisk, &waitingCount);
  DARegisterDiskAppearedCallback(watching.session, nullptr, countDisk, &watchingCount);
  fake::serve(fake::Mode::ModalPanel);
  EXPECT_EQ(waitingCount, 0);
  EXPECT_EQ(watchingCount, 1);
  EXPECT_EQ(CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0, true), kCFRunLoopRunHandledSource);
  EXPECT_EQ(waitingCount, 1);
}

TEST(Fake, tellsTheChangedKeysThatAreWatched) {
  fake::Machine mac;
  plugPartition(mac);
  const Client client;
  std::vector<std::string> all;
  std::vector<std::string> names;
  DARegisterDiskDescriptionChangedCallback(client.session, nullptr, nullptr, noteKeys, &all);
  DARegisterDiskDescriptionChangedCallback(client.session, nullptr,
                                           kDADiskDescriptionWatchVolumeName, noteKeys, &names);
  mac.mount("disk0s1", kVolume);
  mac.rename("disk0s1", "ESP", "/Volumes/ESP");
  fake::serve();
  EXPECT_EQ(all, (std::vector<std::string>{"DAVolumePath", "DAVolumeName", "DAVolumePath"}));
  EXPECT_EQ(names, std::vector<std::string>{"DAVolumeName"});
}

TEST(Fake, callsAMonitorsBlockForTheEventsOfItsMask) {
  fake::Machine mac;
  int count = 0;
  const id token = addCountingMonitor(&count);
  mac.sendEvent(fake::Event::LeftMouseDown);
  EXPECT_EQ(count, 0);
  mac.sendEvent(fake::Event::KeyUp);
  EXPECT_EQ(count, 1);
  removeMonitor(token);
  mac.sendEvent(fake::Event::KeyUp);
  EXPECT_EQ(count, 1);
}
