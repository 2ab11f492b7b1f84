// Announcements about volumes; the conformance suite covers the plain cases.

#include "macos/MacMachine.h"

class MacVolumes : public MacMachine {};

TEST_F(MacVolumes, PresentAtTheStartOfProgramOrServiceAreNotAnnounced) {
  mac.mount(kEsp, "/Volumes/EFI");
  mac.plug("/Volumes/Server");
  start();
  EXPECT_EQ(told(), QStringList{"changed"});
  mac.postNotification(kServiceStart);
  EXPECT_EQ(told(), QStringList{"changed"});
  mac.unmount(kEsp);
  mac.pull("/Volumes/Server");
  mac.plug("/Volumes/Other");
  EXPECT_EQ(told(),
            (QStringList{"-/Volumes/EFI", "-/Volumes/Server", "+/Volumes/Other", "changed"}));
}

TEST_F(MacVolumes, ARenameIsAnnouncedOnceEvenDuringAModalWindow) {
  mac.mount(kEsp, "/Volumes/EFI");
  start();
  told();
  mac.rename(kEsp, "ESP");
  mac.rename(kEsp, "ESP2");
  fake::serve(fake::Mode::ModalPanel);
  EXPECT_EQ(std::exchange(news, {}), (QStringList{"~/Volumes/ESP", "~/Volumes/ESP2"}));
  mac.unmount(kEsp);
  EXPECT_EQ(told(), QStringList{"-/Volumes/ESP2"});
}
