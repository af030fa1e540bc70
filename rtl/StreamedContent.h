// What a value object streams besides properties: lines of a string list, items of a collection.
#pragma once

class IStreamedContent {
 public:
  virtual ~IStreamedContent() = default;
  virtual bool ContentEmpty() const = 0;
  virtual void ClearContent() = 0;
};
