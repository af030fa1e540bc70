// Lists of texts as a property value.
#pragma once
#include <QStringList>

#include "rtl/Component.h"
#include "rtl/StreamedContent.h"

class TStrings : public TOwnedPersistent, public IStreamedContent {
  VRX_CLASS(TStrings)
 public:
  explicit TStrings(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  const QStringList& Lines() const { return lines_; }
  void SetLines(const QStringList& lines) { Change(lines_, lines); }
  int Count() const { return static_cast<int>(lines_.size()); }
  int Add(const QString& line);
  void Clear() { SetLines({}); }
  // The lines joined and split at line ends.
  QString Text() const { return lines_.join(u'\n'); }
  void SetText(const QString& text);

  void Assign(const TPersistent* source) override;
  bool ContentEmpty() const override { return lines_.isEmpty(); }
  void ClearContent() override { Clear(); }

 private:
  QStringList lines_;
};
