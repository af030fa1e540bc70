// Replaces files in one step. The bytes go into a new file beside the old one, are brought to disk, and the
// new file takes the old one's name; then the folder is brought to disk. Whatever fails or dies on the way,
// the old file is whole. What a dead process left behind, the next save of that file takes away.
//
// Kept: permissions, owner (as far as the system lets us), access lists and attributes, symbolic links (their
// target is replaced). Not kept: hard links. The other names go on showing the old bytes, because writing in
// place would leave half a file when it fails.
#pragma once
#include <sys/types.h>

#include <functional>

#include "rtl/Exceptions.h"

namespace forms {

// The file does not hold what the writer thought it held. Nothing was written.
class EFileChanged : public Exception {
 public:
  using Exception::Exception;
};

// Null: the file may hold anything. Otherwise it is replaced only while it holds these bytes (or already
// those to be written); EFileChanged if not. Other errors: Exception, and the old file is untouched unless
// the message says otherwise. Pipes and devices are written to as they are.
void ReplaceFile(const QString& fileName, const QByteArray& bytes, const QByteArray* expected = nullptr);

// Takes away what processes that died while saving this very file left beside it. A file that is being saved
// right now is left alone. Never fails: what cannot be removed stays.
void RemoveLeftovers(const QString& fileName);

// The steps of saving that can fail late or be cut off. Tests put others in their place.
struct SaveSteps {
  std::function<ssize_t(int, const void*, size_t)> write;
  std::function<int(int)> sync;
  std::function<int(int)> close;
  std::function<int(const char*, const char*)> rename;
  std::function<int(int)> syncFolder;
};
SaveSteps& Steps();
SaveSteps SystemSteps();

}  // namespace forms
