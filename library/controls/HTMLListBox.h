// Lists whose rows are texts with markup (docs/html-subset.md).
#pragma once
#include "library/html/HtmlText.h"
#include "vcl/ListBox.h"

class TVRXCustomHTMLListBox : public TCustomListBox {
  VRX_CLASS(TVRXCustomHTMLListBox)
 public:
  explicit TVRXCustomHTMLListBox(TComponent* owner) : TCustomListBox(owner) { SetBounds(0, 0, 120, 96); }
  // Rows are as high as their markup; otherwise all have ItemHeight, or that of a line.
  static constexpr TKept<bool> AutoItemHeight{"AutoItemHeight", true};
  static constexpr TKept<TCustomImageList*> Images{"Images"};
  static constexpr TKept<bool> WordWrap{"WordWrap", true};

  // What is in sight: the place of a row in the list, and its rectangle.
  struct Row {
    int index;
    QRect rect;
  };
  std::vector<Row> VisibleRows() const { return Arranged().rows; }
  // Where the link at a point of the control leads; null when there is none.
  virtual QString LinkAt(QPoint point) const;
  void Paint(TCanvas& canvas) override;

 protected:
  // Around the text of a row.
  virtual int Spacing() const { return 1; }
  virtual TColor SelectedGround() const { return clHighlight; }
  virtual TColor SelectedLetters() const { return clHighlightText; }
  // The ground of a row that is not selected; clNone for that of the list.
  virtual TColor RowGround(int) const { return clNone; }
  virtual void PaintRowEnd(TCanvas&, const QRect&) const {}
  // What stands above the rows; returns what is left for them.
  virtual QRect BelowTitle(const QRect& inside) const { return inside; }
  virtual void PaintTitle(TCanvas&, const QRect&) const {}
  // What stands in the place of rows when there are none.
  virtual QString EmptyWords() const { return {}; }
  void PaintNothing(TCanvas& canvas, const QRect& room) const;
  html::Setup SetupOf(int width, bool selected = false) const;
  // Inside of the frame.
  QRect Inside() const;

 private:
  struct Arrangement {
    std::vector<Row> rows;
    bool scrolls = false;  // a bar stands beside them
    int whole = 0;         // rows that are in sight with all of their height
  };
  QStringList Shown() const;
  Arrangement Arranged() const { return Arranged(Shown()); }
  Arrangement Arranged(const QStringList& items) const;
  Arrangement ArrangedIn(const QStringList& items, const QRect& room) const;
  int RowHeight(const QString& item, int width) const;
  QRect TextOfRow(const QRect& row) const;
};

class TVRXHTMLListBox : public TVRXCustomHTMLListBox {
  VRX_CLASS(TVRXHTMLListBox)
 public:
  using TVRXCustomHTMLListBox::TVRXCustomHTMLListBox;
};

// Whose rows can be told apart: by their ground and by lines.
class TVRXHTMLListBoxExt : public TVRXCustomHTMLListBox {
  VRX_CLASS(TVRXHTMLListBoxExt)
 public:
  using TVRXCustomHTMLListBox::TVRXCustomHTMLListBox;
  static constexpr TKept<TColor> AlternateColor{"AlternateColor", clNone};
  static constexpr TKept<TColor> LineColor{"LineColor", clGrayText};
  static constexpr TKept<int> RowSpacing{"RowSpacing", 2};
  static constexpr TKept<TColor> SelectedColor{"SelectedColor", clHighlight};
  static constexpr TKept<TColor> SelectedTextColor{"SelectedTextColor", clHighlightText};
  static constexpr TKept<bool> ShowLines{"ShowLines", false};

 protected:
  int Spacing() const override { return std::clamp(Get(RowSpacing), 0, 1000); }
  TColor SelectedGround() const override { return Get(SelectedColor); }
  TColor SelectedLetters() const override { return Get(SelectedTextColor); }
  TColor RowGround(int index) const override { return index % 2 ? Get(AlternateColor) : clNone; }
  void PaintRowEnd(TCanvas& canvas, const QRect& row) const override;
};

// With a title above the rows and a text that stands there when there are none.
class TVRXHTMLExtListBox : public TVRXHTMLListBoxExt {
  VRX_CLASS(TVRXHTMLExtListBox)
 public:
  using TVRXHTMLListBoxExt::TVRXHTMLListBoxExt;
  static constexpr TKept<QString> EmptyText{"EmptyText"};
  static constexpr TKept<QString> Title{"Title"};
  static constexpr TKept<TAlignment> TitleAlignment{"TitleAlignment", TAlignment::taLeftJustify};
  static constexpr TKept<TColor> TitleColor{"TitleColor", clBtnFace};

  QString LinkAt(QPoint point) const override;

 protected:
  QRect BelowTitle(const QRect& inside) const override;
  void PaintTitle(TCanvas& canvas, const QRect& inside) const override;
  QString EmptyWords() const override { return Get(EmptyText); }

 private:
  QRect TitlePlace(const QRect& inside) const;
  html::Setup TitleSetup(int width) const;
};
