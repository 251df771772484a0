#include "tests/support/postgres/SmallDisk.h"

#include <QByteArray>
#include <QFile>

namespace brivane::test {
namespace {

constexpr int kMounting = 60000;
constexpr qint64 kBlock = 4096;

}  // namespace

SmallDisk::SmallDisk(int megabytes) : folder_(QStringLiteral("/tmp/brivane-disk-XXXXXX")) {
  QProcess mount;
  mount.setStandardErrorFile(QProcess::nullDevice());
  mount.start("mount", {"-t", "tmpfs", "-o", QString("size=%1m,mode=0777").arg(megabytes), "tmpfs", folder_.path()});
  mount.waitForFinished(kMounting);
  there_ = mount.exitStatus() == QProcess::NormalExit && mount.exitCode() == 0;
  if (!there_) return;
  guard_.setWorkingDirectory("/");
  guard_.start("setsid", {"sh", "-c", QString("cat; umount -l %1; rmdir %1").arg(folder_.path())});
  guard_.waitForStarted();
}

SmallDisk::~SmallDisk() {
  guard_.closeWriteChannel();
  guard_.waitForFinished(kMounting);
}

void SmallDisk::TakeRoom() {
  QFile file(folder_.filePath("vulling"));
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return;
  const QByteArray block(kBlock, 'x');
  while (file.write(block) == kBlock) {
  }
}

void SmallDisk::GiveRoom() { QFile::remove(folder_.filePath("vulling")); }

}  // namespace brivane::test
