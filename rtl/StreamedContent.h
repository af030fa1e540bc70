// What a value object streams besides properties: lines of a string list, items of a collection.
#pragma once

class TPersistent;

class IStreamedContent {
 public:
  virtual ~IStreamedContent() = default;
  virtual bool ContentEmpty() const = 0;
  virtual void ClearContent() = 0;
  // The objects that the content consists of, one after the other; null at the end.
  virtual TPersistent* ContentPart(int) const { return nullptr; }
};
