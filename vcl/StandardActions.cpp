#include "vcl/StandardActions.h"

#include <algorithm>
#include <array>

#include "vcl/DialogParts.h"
#include "vcl/TabControl.h"

namespace {
constexpr auto Rows = std::to_array<TStandardActionRow>({
    {"TEditCut", "Edit", "Moves the selected text to the clipboard."},
    {"TEditCopy", "Edit", "Copies the selected text to the clipboard."},
    {"TEditPaste", "Edit", "Inserts what is on the clipboard."},
    {"TEditSelectAll", "Edit", "Selects the whole text."},
    {"TEditUndo", "Edit", "Takes the last change of the text back."},
    {"TEditDelete", "Edit", "Deletes the selected text."},
    {"TFileOpen", "File", "Asks for a file to open."},
    {"TFileOpenWith", "File", "Opens a file with another program."},
    {"TFileSaveAs", "File", "Asks for the name of a file to save."},
    {"TFilePrintSetup", "File", "Asks for a printer and how it is set up."},
    {"TFilePageSetup", "File", "Asks for paper and margins."},
    {"TFileRun", "File", "Starts a program."},
    {"TFileExit", "File", "Ends the program."},
    {"TSearchFind", "Search", "Asks for a text to look for."},
    {"TSearchFindFirst", "Search", "Looks for a text from the beginning."},
    {"TSearchFindNext", "Search", "Looks for the same text again."},
    {"TSearchReplace", "Search", "Asks for a text to replace."},
    {"TWindowClose", "Window", "Closes the window in front."},
    {"TWindowCascade", "Window", "Arranges the windows one behind the other."},
    {"TWindowTileHorizontal", "Window", "Arranges the windows one above the other."},
    {"TWindowTileVertical", "Window", "Arranges the windows side by side."},
    {"TWindowMinimizeAll", "Window", "Makes icons of all windows."},
    {"TWindowArrange", "Window", "Arranges the icons of windows."},
    {"THelpContents", "Help", "Shows the contents of the help."},
    {"THelpTopicSearch", "Help", "Looks for a topic of the help."},
    {"THelpOnHelp", "Help", "Shows how the help is used."},
    {"THelpContextAction", "Help", "Shows the help of what has the focus."},
    {"TColorSelect", "Dialog", "Asks for a color."},
    {"TFontEdit", "Dialog", "Asks for a font."},
    {"TPrintDlg", "Dialog", "Asks what to print."},
    {"TNextTab", "Tab", "Shows the next page."},
    {"TPreviousTab", "Tab", "Shows the previous page."},
    {"TRichEditBold", "Format", "Makes the selected text bold."},
    {"TRichEditItalic", "Format", "Makes the selected text slant."},
    {"TRichEditUnderline", "Format", "Underlines the selected text."},
    {"TRichEditStrikeOut", "Format", "Strikes the selected text out."},
    {"TRichEditBullets", "Format", "Puts bullets in front of paragraphs."},
    {"TRichEditAlignLeft", "Format", "Aligns paragraphs to the left."},
    {"TRichEditAlignRight", "Format", "Aligns paragraphs to the right."},
    {"TRichEditAlignCenter", "Format", "Centers paragraphs."},
});

// What some of them keep besides: the dialog that they open, and what they are told of it.
template <class Dialog>
TClassBuilder Asks(TClassBuilder b) {
  return std::move(b)
      .template Passive<Dialog*>("Dialog")
      .Event("AfterExecute")
      .Event("BeforeExecute")
      .Event("OnAccept")
      .Event("OnCancel");
}
TClassBuilder Opens(TClassBuilder b) {
  return Asks<TOpenDialogPart>(std::move(b).Passive("UseDefaultApp", false));
}
TClassBuilder OpensWith(TClassBuilder b) {
  return Opens(std::move(b).Passive<QString>("FileName").Event("AfterOpen"));
}
TClassBuilder Runs(TClassBuilder b) {
  return std::move(b)
      .Passive("Browse", false)
      .Passive<TOpenDialogPart*>("BrowseDlg")
      .Passive<QString>("Directory")
      .Passive<QString>("FileName")
      .Passive<QString>("Operation")
      .Passive<TWinControl*>("ParentControl")
      .Passive<QString>("Parameters")
      .Event("AfterExecute")
      .Event("BeforeExecute");
}
TClassBuilder SearchesOn(TClassBuilder b) { return std::move(b).Passive<TAction*>("SearchFind"); }
TClassBuilder Pages(TClassBuilder b) {
  return std::move(b)
      .Passive<QString>("LastTabCaption")
      .Passive<TCustomTabControl*>("TabControl")
      .Passive("Wrap", false)
      .Event("AfterTabChange")
      .Event("BeforeTabChange");
}

struct MoreRow {
  const char* name;
  TClassBuilder (*more)(TClassBuilder);
};
constexpr auto MoreRows = std::to_array<MoreRow>({{"TFileOpen", Opens},
                                                  {"TFileOpenWith", OpensWith},
                                                  {"TFileSaveAs", Asks<TOpenDialogPart>},
                                                  {"TFilePrintSetup", Asks<TPrinterSetupDialogPart>},
                                                  {"TFilePageSetup", Asks<TPageSetupDialogPart>},
                                                  {"TFileRun", Runs},
                                                  {"TSearchFind", Asks<TFindDialogPart>},
                                                  {"TSearchFindFirst", Asks<TFindDialogPart>},
                                                  {"TSearchFindNext", SearchesOn},
                                                  {"TSearchReplace", Asks<TReplaceDialogPart>},
                                                  {"TColorSelect", Asks<TColorDialogPart>},
                                                  {"TFontEdit", Asks<TFontDialogPart>},
                                                  {"TPrintDlg", Asks<TPrintDialogPart>},
                                                  {"TNextTab", Pages},
                                                  {"TPreviousTab", Pages}});
TClassBuilder WithMore(TClassBuilder b, const char* name) {
  const auto row = std::find_if(MoreRows.begin(), MoreRows.end(), [&](const MoreRow& r) {
    return QByteArrayView(r.name) == QByteArrayView(name);
  });
  return row == MoreRows.end() ? std::move(b) : row->more(std::move(b));
}

template <std::size_t Row>
class TStandardAction final : public TAction {
 public:
  using TAction::TAction;
  static const TClass& StaticClass() {
    static const TClass cls(
        WithMore(DescribeClass<TStandardAction>(Rows[Row].Name, TAction::StaticClass()), Rows[Row].Name)
            .ClassDoc(QString::fromLatin1(Rows[Row].Purpose)));
    return cls;
  }
  const TClass& ClassType() const override { return StaticClass(); }
};

template <std::size_t... Row>
std::vector<const TClass& (*)()> ClassesOf(std::index_sequence<Row...>) {
  return {&TStandardAction<Row>::StaticClass...};
}
}  // namespace

const std::vector<TStandardActionRow>& StandardActionRows() {
  static const std::vector<TStandardActionRow> rows(Rows.begin(), Rows.end());
  return rows;
}

const std::vector<const TClass& (*)()>& StandardActionClasses() {
  static const auto classes = ClassesOf(std::make_index_sequence<Rows.size()>());
  return classes;
}
