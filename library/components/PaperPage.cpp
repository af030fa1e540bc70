#include "library/components/PaperPage.h"

#include <QtWidgets>

namespace {
constexpr QPageSize::PageSizeId UsualSizes[] = {
    QPageSize::A3,        QPageSize::A4,         QPageSize::A5,        QPageSize::A6,
    QPageSize::B5,        QPageSize::Letter,     QPageSize::Legal,     QPageSize::Tabloid,
    QPageSize::Executive, QPageSize::EnvelopeDL, QPageSize::EnvelopeC5};
constexpr const char* Sides[] = {"left", "top", "right", "bottom"};

template <class W>
W* Named(W* widget, const char* name) {
  widget->setObjectName(QLatin1StringView(name));
  return widget;
}

// What is left of the page between its margins.
class PagePicture : public QWidget {
 public:
  explicit PagePicture(const PaperPage& page) : page_(page) { setMinimumSize(130, 130); }

 protected:
  void paintEvent(QPaintEvent*) override {
    const QPageLayout layout = page_.Layout();
    const QRectF paper = layout.fullRect();
    if (paper.isEmpty()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr double room = 8;
    const double scale =
        std::min((width() - 2 * room) / paper.width(), (height() - 2 * room) / paper.height());
    painter.translate((width() - paper.width() * scale) / 2, (height() - paper.height() * scale) / 2);
    const QRectF shown(0, 0, paper.width() * scale, paper.height() * scale);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::white);
    painter.drawRect(shown);
    const QMarginsF margins = layout.margins() * scale;
    const QRectF text = shown.marginsRemoved(margins);
    if (text.width() < 2 || text.height() < 2) return;
    painter.setPen(QPen(QColor(0x9A, 0xA4, 0xB2), 2));
    constexpr double line = 7;
    for (double y = text.top() + 1; y < text.bottom(); y += line)
      painter.drawLine(QPointF(text.left(), y), QPointF(text.right(), y));
  }

 private:
  const PaperPage& page_;
};
}  // namespace

PaperPage::PaperPage(const QPageLayout& layout, const Offer& offer)
    : unit_(offer.inches ? QPageLayout::Inch : QPageLayout::Millimeter),
      least_(offer.least),
      sizes_(Named(new QComboBox, "paper")),
      portrait_(Named(new QRadioButton(tr("P&ortrait")), "portrait")),
      landscape_(Named(new QRadioButton(tr("&Landscape")), "landscape")) {
  QPageLayout start = layout;
  start.setUnits(unit_);
  AddSizes(start.pageSize());
  (start.orientation() == QPageLayout::Landscape ? landscape_ : portrait_)->setChecked(true);
  auto* form = new QFormLayout;
  form->addRow(tr("Pa&per:"), sizes_);
  auto* lies = new QHBoxLayout;
  lies->addWidget(portrait_);
  lies->addWidget(landscape_);
  lies->addStretch(1);
  form->addRow(tr("Orientation:"), lies);
  const QMarginsF margins = start.margins();
  const double values[] = {margins.left(), margins.top(), margins.right(), margins.bottom()};
  const QString labels[] = {tr("L&eft margin:"), tr("&Top margin:"), tr("&Right margin:"),
                            tr("&Bottom margin:")};
  for (int i = 0; i < 4; ++i) {
    margins_[i] = Named(new QDoubleSpinBox, Sides[i]);
    margins_[i]->setDecimals(offer.inches ? 3 : 2);
    margins_[i]->setSingleStep(offer.inches ? 0.1 : 1);
    margins_[i]->setRange(0, 5000);
    margins_[i]->setSuffix(offer.inches ? tr(" in") : tr(" mm"));
    margins_[i]->setValue(values[i]);
    margins_[i]->setEnabled(offer.margins);
    form->addRow(labels[i], margins_[i]);
  }
  sizes_->setEnabled(offer.paper);
  portrait_->setEnabled(offer.orientation);
  landscape_->setEnabled(offer.orientation);
  auto* picture = new PagePicture(*this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(12);
  row->addLayout(form, 1);
  row->addWidget(picture);
  setFocusProxy(sizes_);
  const auto repaint = [picture] { picture->update(); };
  connect(sizes_, &QComboBox::currentIndexChanged, picture, repaint);
  connect(landscape_, &QRadioButton::toggled, picture, repaint);
  for (auto* margin : margins_) connect(margin, &QDoubleSpinBox::valueChanged, picture, repaint);
}

void PaperPage::AddSizes(const QPageSize& now) {
  // One that is none of the usual is there, too.
  bool usual = false;
  for (const QPageSize::PageSizeId id : UsualSizes) {
    const QPageSize size(id);
    sizes_->addItem(size.name(), QVariant::fromValue(size));
    if (!usual && size.isEquivalentTo(now)) {
      sizes_->setCurrentIndex(sizes_->count() - 1);
      usual = true;
    }
  }
  if (usual || !now.isValid()) return;
  sizes_->addItem(now.name(), QVariant::fromValue(now));
  sizes_->setCurrentIndex(sizes_->count() - 1);
}

QPageLayout PaperPage::Layout() const {
  QPageLayout layout(sizes_->currentData().value<QPageSize>(),
                     landscape_->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait,
                     {margins_[0]->value(), margins_[1]->value(), margins_[2]->value(), margins_[3]->value()},
                     unit_);
  // More than the page has is kept as it is entered, for it to be refused.
  layout.setMode(QPageLayout::FullPageMode);
  layout.setMargins({margins_[0]->value(), margins_[1]->value(), margins_[2]->value(), margins_[3]->value()});
  return layout;
}

QString PaperPage::WhyNot() const {
  const QString names[] = {tr("left"), tr("top"), tr("right"), tr("bottom")};
  const double least[] = {least_.left(), least_.top(), least_.right(), least_.bottom()};
  for (int i = 0; i < 4; ++i)
    if (margins_[i]->value() < least[i])
      return tr("The %1 margin is %2. It must be at least %3.")
          .arg(names[i], margins_[i]->text(), margins_[i]->textFromValue(least[i]) + margins_[i]->suffix());
  const QRectF paper = Layout().fullRect();
  const QMarginsF margins = Layout().margins();
  if (margins.left() + margins.right() >= paper.width() || margins.top() + margins.bottom() >= paper.height())
    return tr("The margins leave nothing of the page. Make them smaller, or choose a larger paper.");
  return {};
}
