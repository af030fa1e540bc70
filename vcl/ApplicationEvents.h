// Components that stand for the program as a whole.
#pragma once
#include "rtl/Component.h"
#include "vcl/Picture.h"

enum class TBalloonFlags : std::uint8_t { bfNone, bfInfo, bfWarning, bfError };
VRX_ENUM(TBalloonFlags, {"bfNone", "bfInfo", "bfWarning", "bfError"})
enum class TApplicationExceptionDlg : std::uint8_t { aedOkCancelDialog, aedOkMessageBox };
VRX_ENUM(TApplicationExceptionDlg, {"aedOkCancelDialog", "aedOkMessageBox"})

class TCustomApplicationEvents : public TComponent {
  VRX_CLASS(TCustomApplicationEvents)
 public:
  using TComponent::TComponent;
};

class TApplicationEvents : public TCustomApplicationEvents {
  VRX_CLASS(TApplicationEvents)
 public:
  using TCustomApplicationEvents::TCustomApplicationEvents;
};

// The same in the other family of forms, with properties.
class TApplicationProperties : public TCustomApplicationEvents {
  VRX_CLASS(TApplicationProperties)
 public:
  using TCustomApplicationEvents::TCustomApplicationEvents;
};

class TTrayIcon : public TComponent {
  VRX_CLASS(TTrayIcon)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TIcon*> Icon{"Icon"};
};
