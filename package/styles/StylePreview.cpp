#include "package/styles/StylePreview.h"

#include <QPainter>

#include "dclstd/CheckedGround.h"
#include "library/styles/StyleManager.h"
#include "rtl/ClassRegistry.h"
#include "rtl/PropAccess.h"
#include "vcl/FormColors.h"

namespace {
const TClass* ClassToShow(const QString& name) {
  if (name.contains(QStringLiteral("Base")) || name.contains(QStringLiteral("Custom"))) return nullptr;
  const TClass* cls = FindClass(name.toLatin1());
  return cls && !cls->IsAbstract() && cls->InheritsFrom(TControl::StaticClass()) ? cls : nullptr;
}
}  // namespace

StylePreview::StylePreview(QWidget* parent) : QFrame(parent), view_(new ControlView(nullptr, this)) {
  setFrameShape(QFrame::StyledPanel);
  view_->hide();
}
// The view is gone before what it shows.
StylePreview::~StylePreview() { delete view_; }

void StylePreview::ShowControl(const QString& className) {
  className_ = className;
  Make();
}

void StylePreview::Make() {
  view_->SetControl(nullptr);
  control_.reset();
  if (const TClass* cls = ClassToShow(className_)) {
    control_.reset(static_cast<TControl*>(cls->NewComponent(nullptr)));
    for (const char* name : {"Text", "Caption", "Value"}) {
      const TPropInfo* prop = cls->FindProp(name);
      if (!prop || !prop->Is<QString>() || !prop->IsWritable()) continue;
      SetStrProp(*control_, *prop, className_);
      break;
    }
    view_->SetControl(control_.get());
    SetThemed(themed_);
  }
  view_->setVisible(control_ != nullptr);
  Arrange();
}

void StylePreview::ApplyStyle(const TVRXStyleManager& manager, const QString& stylePath, bool cascade) {
  Make();
  if (!control_) return;
  // What does not fit is for the class of a form's component to say; here it is left out.
  manager.ApplyStyle(*control_, stylePath, cascade);
  Arrange();
}

void StylePreview::SetThemed(bool on) {
  themed_ = on;
  const TPropInfo* prop = control_ ? control_->ClassType().FindProp("ThemeMode") : nullptr;
  if (prop && prop->IsOrdinal()) SetOrdProp(*control_, *prop, on);
}
void StylePreview::SetAligned(bool on) {
  aligned_ = on;
  if (!on && control_) Make();
  Arrange();
}
void StylePreview::SetGround(bool on) {
  ground_ = on;
  update();
}

void StylePreview::resizeEvent(QResizeEvent*) { Arrange(); }

void StylePreview::Arrange() {
  const QRect room = contentsRect();
  view_->SetFillView(aligned_);
  const QSize size =
      aligned_ || !control_ ? room.size() : control_->BoundsRect().size().boundedTo(room.size());
  QRect place(QPoint(0, 0), size);
  place.moveCenter(room.center());
  view_->setGeometry(place);
}

void StylePreview::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  constexpr int check = 8;
  if (ground_)
    PaintCheckedGround(painter, contentsRect(), check);
  else
    painter.fillRect(contentsRect(), FormPalette().color(QPalette::Window));
  painter.end();
  QFrame::paintEvent(event);
}
