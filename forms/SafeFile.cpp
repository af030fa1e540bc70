#include "forms/SafeFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QFile>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <optional>

#include "forms/FileBytes.h"

namespace forms {

SaveSteps SystemSteps() { return {::write, ::fdatasync, ::close, std::rename, ::fsync}; }

SaveSteps& Steps() {
  static SaveSteps steps = SystemSteps();
  return steps;
}

namespace {
class Descriptor {
 public:
  explicit Descriptor(int fd = -1) : fd_(fd) {}
  Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(fd_, other.fd_);
    return *this;
  }
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  explicit operator bool() const { return fd_ >= 0; }
  int operator*() const { return fd_; }
  // The caller closes it.
  int Release() { return std::exchange(fd_, -1); }

 private:
  int fd_;
};

// A path and its parts, as the system takes them.
struct Place {
  QByteArray path, folder, name;
  explicit Place(const QByteArray& p) : path(p) {
    const qsizetype slash = p.lastIndexOf('/');
    folder = slash < 0 ? QByteArray("./") : p.first(slash + 1);
    name = p.sliced(slash + 1);
  }
};

constexpr char Suffix[] = ".vrxsave";
constexpr qsizetype MarkLength = 16;    // hexadecimal digits
constexpr qsizetype LongestName = 200;  // of 255 that a file system takes

// ".unit1.dfm.0123456789abcdef.vrxsave"
QByteArray LeftoverStart(const Place& place) {
  return '.' + place.name.first(std::min(place.name.size(), LongestName)) + '.';
}

QByteArray NewName(const Place& place) {
  const QByteArray mark = QByteArray::number(QRandomGenerator::system()->generate64(), 16);
  return place.folder + LeftoverStart(place) + mark.rightJustified(MarkLength, '0') + Suffix;
}

bool IsLeftover(const Place& place, QByteArrayView name) {
  const QByteArray start = LeftoverStart(place);
  if (name.size() != start.size() + MarkLength + qsizetype{sizeof Suffix} - 1) return false;
  if (!name.startsWith(start) || !name.endsWith(QByteArrayView(Suffix))) return false;
  const QByteArrayView mark = name.sliced(start.size(), MarkLength);
  return std::all_of(mark.begin(), mark.end(),
                     [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
}

[[noreturn]] void Fail(const QString& file, const QString& why) {
  throw Exception(QStringLiteral("Cannot save %1: %2. The file on disk is unchanged.").arg(file, why));
}
[[noreturn]] void FailWith(const QString& file, int error) { Fail(file, qt_error_string(error)); }

// Where a chain of symbolic links ends; that file need not exist.
std::optional<Place> Target(const QString& file) {
  Place place(QFile::encodeName(file));
  constexpr int MaxLinks = 40;
  for (int i = 0; i < MaxLinks; ++i) {
    char to[PATH_MAX];
    const ssize_t size = ::readlink(place.path.constData(), to, sizeof to);
    if (size < 0) return place;
    const QByteArray target(to, size);
    place = Place(target.startsWith('/') ? target : place.folder + target);
  }
  return {};
}

bool WriteAll(int fd, const QByteArray& bytes) {
  for (qsizetype done = 0; done < bytes.size();) {
    const ssize_t n =
        Steps().write(fd, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
    if (n < 0 && errno == EINTR) continue;
    if (n == 0) errno = EIO;
    if (n <= 0) return false;
    done += n;
  }
  return true;
}

// A new file beside the old one. It is locked as long as `lock` is open, even when it is being renamed: that
// is how others see that its process is alive.
struct NewFile {
  QByteArray path;
  Descriptor data, lock;
};

NewFile MakeNewFile(const QString& file, const Place& place, mode_t mode) {
  for (;;) {
    NewFile f;
    f.path = NewName(place);
    f.data = Descriptor(::open(f.path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!f.data && errno == EEXIST) continue;
    if (!f.data) FailWith(file, errno);
    // A file system without locks has nobody who could take the file away either.
    const bool taken = ::flock(*f.data, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat now;
    // Somebody who cleans up was quicker than our lock.
    if (taken || (::fstat(*f.data, &now) == 0 && now.st_nlink == 0)) continue;
    f.lock = Descriptor(::fcntl(*f.data, F_DUPFD_CLOEXEC, 0));
    if (!f.lock) {
      const int error = errno;
      ::unlink(f.path.constData());
      FailWith(file, error);
    }
    return f;
  }
}

// Access lists and the user's own attributes. Not every file system has them.
void CopyAttributes(const char* from, int to) {
  QByteArray names(::listxattr(from, nullptr, 0) > 0 ? 64 << 10 : 0, '\0');
  const ssize_t size =
      names.isEmpty() ? 0 : ::listxattr(from, names.data(), static_cast<std::size_t>(names.size()));
  if (size <= 0) return;
  for (const QByteArray& name : names.first(size).split('\0')) {
    if (!name.startsWith("user.") && !name.startsWith("system.posix_acl_")) continue;
    char value[64 << 10];
    const ssize_t length = ::getxattr(from, name.constData(), value, sizeof value);
    if (length >= 0) ::fsetxattr(to, name.constData(), value, static_cast<std::size_t>(length), 0);
  }
}

// The new file belongs to whom the old one belonged, and lets the same people in.
bool TakeOver(const Place& place, const struct stat& old, int to) {
  struct stat now;
  if (::fstat(to, &now) != 0) return false;
  // Only the administrator can give files away; others keep at least the group, if it is one of theirs.
  const bool group = (now.st_uid == old.st_uid && now.st_gid == old.st_gid) ||
                     ::fchown(to, old.st_uid, old.st_gid) == 0 ||
                     ::fchown(to, static_cast<uid_t>(-1), old.st_gid) == 0;
  mode_t mode = old.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  // Another group does not get the rights of the old one.
  if (!group) mode = (mode & ~mode_t{S_IRWXG}) | ((mode & S_IRWXO) << 3);
  if (::fchmod(to, mode) != 0) return false;
  CopyAttributes(place.path.constData(), to);
  return true;
}

void WriteThrough(const QString& file, const Place& place, const QByteArray& bytes) {
  Descriptor out(::open(place.path.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
  if (!out || !WriteAll(*out, bytes) || Steps().close(out.Release()) != 0)
    throw Exception(QStringLiteral("Cannot write to %1: %2").arg(file, qt_error_string(errno)));
}

void CheckExpected(const QString& file, const QByteArray& expected, const QByteArray& bytes) {
  const QString advice =
      QStringLiteral("Nothing was written; read the file again or save under another name.");
  if (!QFile::exists(file))
    throw EFileChanged(
        QStringLiteral("Cannot save %1: another program removed it meanwhile. %2").arg(file, advice));
  const QByteArray now = ReadFile(file);
  if (now != expected && now != bytes)
    throw EFileChanged(
        QStringLiteral("Cannot save %1: another program changed it meanwhile. %2").arg(file, advice));
}

void SyncFolder(const QString& file, const Place& place) {
  // Who may not list a folder may not bring it to disk, and some file systems do it on their own.
  const Descriptor folder(::open(place.folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder && Steps().syncFolder(*folder) != 0 && errno != EINVAL && errno != ENOTSUP)
    throw Exception(QStringLiteral("%1 was written, but its folder could not be brought to disk: %2. After a "
                                   "power failure the old file may be back; save once more.")
                        .arg(file, qt_error_string(errno)));
}

void RemoveLeftovers(const Place& place) {
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(place.folder.constData()), ::closedir);
  if (!folder) return;
  while (const dirent* entry = ::readdir(folder.get())) {
    if (!IsLeftover(place, QByteArrayView(entry->d_name))) continue;
    const int at = ::dirfd(folder.get());
    const Descriptor file(::openat(at, entry->d_name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat now;
    if (file && ::fstat(*file, &now) == 0 && S_ISREG(now.st_mode) && ::flock(*file, LOCK_EX | LOCK_NB) == 0)
      ::unlinkat(at, entry->d_name, 0);
  }
}
}  // namespace

void RemoveLeftovers(const QString& fileName) {
  if (const auto place = Target(fileName)) RemoveLeftovers(*place);
}

void ReplaceFile(const QString& fileName, const QByteArray& bytes, const QByteArray* expected) {
  const auto place = Target(fileName);
  if (!place) FailWith(fileName, ELOOP);
  struct stat old;
  const bool exists = ::stat(place->path.constData(), &old) == 0;
  if (!exists && errno != ENOENT) FailWith(fileName, errno);
  if (exists && S_ISDIR(old.st_mode)) Fail(fileName, QStringLiteral("it is a folder"));
  if (exists && !S_ISREG(old.st_mode)) return WriteThrough(fileName, *place, bytes);
  if (exists && ::access(place->path.constData(), W_OK) != 0) FailWith(fileName, errno);
  RemoveLeftovers(*place);

  NewFile file = MakeNewFile(fileName, *place, exists ? 0600 : 0666);
  auto undo = qScopeGuard([&] { ::unlink(file.path.constData()); });
  if (exists && !TakeOver(*place, old, *file.data)) FailWith(fileName, errno);
  if (!WriteAll(*file.data, bytes) || Steps().sync(*file.data) != 0) FailWith(fileName, errno);
  // Network file systems tell only now that the disk is full. The lock stays: it is another descriptor.
  if (Steps().close(file.data.Release()) != 0 && errno != EINTR) FailWith(fileName, errno);
  if (expected) CheckExpected(fileName, *expected, bytes);
  if (Steps().rename(file.path.constData(), place->path.constData()) != 0) FailWith(fileName, errno);
  undo.dismiss();
  SyncFolder(fileName, *place);
}

}  // namespace forms
