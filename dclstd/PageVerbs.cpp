#include "dclstd/PageVerbs.h"

#include "rtl/Exceptions.h"
#include "vcl/PageControl.h"

namespace {
enum TPageVerb { New, Next, Previous, Delete, Count };

// From the last one to the first, and the other way round.
TTabSheet* Neighbour(const TTabSheet& page, int by) {
  const std::vector<TTabSheet*> pages = page.Book()->Pages();
  const int count = static_cast<int>(pages.size());
  return pages[static_cast<std::size_t>((page.PageIndex() + by + count) % count)];
}
}  // namespace

TPageControl* TPageControlEditor::Book() const {
  if (const auto* page = As<TTabSheet>(GetComponent())) return page->Book();
  return As<TPageControl>(GetComponent());
}

TTabSheet* TPageControlEditor::Page() const {
  auto* page = As<TTabSheet>(GetComponent());
  return page || !Book() ? page : Book()->FrontPage();
}

int TPageControlEditor::GetVerbCount() const { return Book() ? Count : 0; }

QString TPageControlEditor::GetVerb(int index) const {
  const QString verbs[] = {QObject::tr("New Page"), QObject::tr("Next Page"), QObject::tr("Previous Page"),
                           QObject::tr("Delete Page")};
  return index >= 0 && index < GetVerbCount() ? verbs[index] : QString();
}

QString TPageControlEditor::GetVerbProblem(int index) const {
  if (index == New || !Book()) return {};
  const std::size_t count = Book()->Pages().size();
  if (count == 0) return QObject::tr("%1 has no pages").arg(Book()->Name());
  return count == 1 && index != Delete ? QObject::tr("%1 has no other page").arg(Book()->Name()) : QString();
}

void TPageControlEditor::ExecuteVerb(int index) {
  if (index < 0 || index >= GetVerbCount() || !GetDesigner() || !GetVerbProblem(index).isEmpty()) return;
  GetDesigner()->Perform(GetVerb(index), [&] {
    if (index == New)
      NewPage();
    else if (index == Delete)
      DeletePage();
    else
      GoOn(index == Next ? 1 : -1);
  });
}

void TPageControlEditor::NewPage() {
  TPageControl* book = Book();
  auto* page = As<TTabSheet>(GetDesigner()->CreateComponent(TTabSheet::StaticClass(), book, {}));
  if (!page || page->Book() != book) throw EComponentError(QObject::tr("A page cannot be added here."));
  book->SetActivePage(page);
}

// As a click on its tab does it. A selected page would come to the front again.
void TPageControlEditor::GoOn(int by) {
  TTabSheet* next = Neighbour(*Page(), by);
  Book()->ChooseTab(next->PageIndex());
  if (GetComponent() != Book()) GetDesigner()->SelectComponent(next);
}

// The one behind it comes to the front, or, of the last one, the one before it.
void TPageControlEditor::DeletePage() {
  TPageControl* book = Book();
  TTabSheet* page = Page();
  const bool last = page->PageIndex() + 1 == static_cast<int>(book->Pages().size());
  TTabSheet* next = Neighbour(*page, last ? -1 : 1);
  if (next == page) next = nullptr;
  const bool active = book->ActivePage() == page, selected = GetComponent() == page;
  GetDesigner()->SelectComponent(page);
  GetDesigner()->DeleteSelection();
  if (active) book->SetActivePage(next);
  GetDesigner()->SelectComponent(selected && next ? static_cast<TPersistent*>(next) : book);
}
