#pragma once

#include <QColor>
#include <QObject>

// The program's colours, named for what they paint. Screens ask for a role, never for a
// value, so one change here recolours every place that role appears. This half of the
// look needs Qt Gui only: the thumbnail renderer, which links no widgets, draws with it.
namespace Look {
Q_NAMESPACE

enum class Color
{
    // Grounds
    WindowGround,        // the window, the lists, a rename row at rest
    HeaderGround,        // the folder header over the duplicate results
    BarGround,           // the sort and progress bars under the results
    PopoverGround,       // a popover's body
    TabBarGround,        // the dark bar that switches between the two tools
    ButtonBarGround,     // the bar under the rename list
    RenameRowHover,      // the rename row under the pointer
    DuplicateRowHover,   // a tint over the duplicate group under the pointer
    ThumbnailWell,       // the soft square a thumbnail sits in, or that stands in for one
    FieldGround,         // a text field that can be typed into
    ReadOnlyFieldGround, // a text field that cannot
    Paper,               // a drawn sheet: the pages of the drop picture, a text preview
    PaperFold,           // the folded corner of a drawn page
    PreviewGround,       // the square behind a previewed picture or icon
    DropZoneGround,      // the rename drop zone at rest
    DropZoneHighlight,   // the drop zone while files are held over it
    ProgressTrack,       // the groove a scan's progress runs along

    // Text
    PrimaryText,        // names, headlines, figures
    SecondaryText,      // captions, paths, dates, statuses: anything read after the name
    DisabledText,       // a row on its way to the Trash
    PathSeparator,      // the ">" between the folders of a path
    PreviewText,        // the lines of a previewed text file
    LinkText,           // a lesser action written as a link
    TextOnColor,        // titles and marks on a coloured or dark ground
    TabTitle,           // a tool's name in the tab bar
    TabTitleSelected,   // the shown tool's name in the tab bar
    RuleName,           // a new name that the rename rule made
    HandEditedName,     // a new name that the user typed
    NewNamePlaceholder, // "New Name" where a row has none
    Placeholder,        // the hint in an empty rule field
    PlainButtonText,    // the title of a plain button
    InactiveButtonText, // the title of a button that has nothing to do yet
    ProblemMark,        // a row that will not or could not be renamed: its mark and word

    // Buttons
    Accent,               // the main action: start a scan, rename, got it; the drop outline
    DuplicatesAccent,     // the duplicate screens' own: the chosen filter, the moving progress
    DarkButtonGround,     // a button that leaves a finished screen: new scan, done
    InactiveButtonGround, // a main action with nothing to do yet
    GlassButtonGround,    // a button on the about screen's picture
    GlassButtonPressed,
    MoreAppsGround, // the about screen's link to the maker's other programs
    MoreAppsPressed,
    PlainButtonGround, // add files, clear
    PlainButtonHover,
    PlainButtonPressed,
    ToolButtonHover, // the small icon buttons of a rename row
    ToolButtonPressed,

    // Lines
    Divider,             // the line over a bar
    ButtonBarDivider,    // the line over the bar under the rename list
    RowSeparator,        // the line under a list row
    ControlBorder,       // a rounded text field, a button on a picture
    ReadOnlyFieldBorder, // a text field that cannot be typed into
    BoxBorder,           // the rounded box around a rule panel
    PlainButtonBorder,
    SearchFieldBorder,
    FieldHoverBorder, // a row's name field under the pointer
    FieldFocusBorder, // a row's name field being typed into
    PopoverBorder,
    PreviewBorder,
    DropZoneBorder,

    // Drawings
    PageOutline,         // the pages of the drop picture
    PageLines,           // the lines of text on those pages
    ArrowMark,           // the arrow from a row's old name to its new one
    ControlMark,         // the eye that opens a row's popover
    RemoveDisc,          // the disc behind the cross that takes a row out
    IconStroke,          // the outline of a drawn file or folder icon
    FolderIconFill,      // a drawn folder
    IconPageFill,        // a drawn page in a thumbnail
    PreviewIconPageFill, // a drawn page in a preview, lighter to stand off its ground
};
Q_ENUM_NS(Color)

// Light on a light desktop, dark under a dark theme: the program follows the tone of the
// application's palette, which the desktop's theme (or the user) sets before any window.
enum class Tone
{
    Light,
    Dark,
};
Q_ENUM_NS(Tone)

// Dark when the palette's window colour is; light without a GUI application.
Tone tone();
// The role in the application's tone. Main thread only: it reads the application palette.
QColor color(Color role);
// The role in a given tone; any thread.
QColor color(Color role, Tone tone);

} // namespace Look
