// What is told of volumes; the suite that all backends share has the plain cases.

#include "macos/MacMachine.h"

class MacVolumes : public MacMachine {};

TEST_F(MacVolumes, ThatAreThereAtTheBeginningAreNoNews) {
  mac.mount(kEsp, "/Volumes/EFI");
  mac.plugVolumeWithoutMedia("/Volumes/Server");
  start();
  EXPECT_EQ(told(), QStringList{"+"});
  mac.unmount(kEsp);
  mac.pull("/Volumes/Server");
  EXPECT_EQ(told(), (QStringList{"-/Volumes/EFI", "-/Volumes/Server", "+"}));
}

TEST_F(MacVolumes, AreToldOfWithAndWithoutMedia) {
  start();
  told();
  mac.plug("disk1", {{"DAVolumeKind", "hfs"}, {"DAVolumePath", fake::Path{"/Volumes/Image"}}});
  mac.plugVolumeWithoutMedia("/Volumes/Server");
  mac.plug("disk2", {{"DAMediaName", "Stick"}});
  EXPECT_EQ(told(), (QStringList{"+/Volumes/Image", "+/Volumes/Server", "+"}));
  mac.pull("disk1");
  EXPECT_EQ(told(), (QStringList{"-/Volumes/Image", "+"})) << "pulled while mounted";
}

TEST_F(MacVolumes, ARenameThatMovesTheMountPointIsOneRename) {
  mac.mount(kEsp, "/Volumes/EFI");
  start();
  told();
  mac.rename(kEsp, "ESP", "/Volumes/ESP");
  EXPECT_EQ(told(), QStringList{"~/Volumes/ESP"});
  mac.rename(kEsp, "ESP2");
  EXPECT_EQ(told(), QStringList{"~/Volumes/ESP"});
  mac.unmount(kEsp);
  EXPECT_EQ(told(), QStringList{"-/Volumes/ESP"});
}

TEST_F(MacVolumes, AreToldOfWhileAModalWindowIsOpen) {
  start();
  told();
  mac.mount(kEsp, "/Volumes/EFI");
  fake::serve(fake::Mode::ModalPanel);
  EXPECT_EQ(news, QStringList{"+/Volumes/EFI"});
}

TEST_F(MacVolumes, GoUnnoticedWithoutAService) {
  mac.hasDiskService = false;
  start();
  EXPECT_EQ(told(), QStringList{});
}
