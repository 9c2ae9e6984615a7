#include "LookColors.h"

#include "BRColorHelper.h"

#include <QGuiApplication>
#include <QPalette>
#include <QtMath>

namespace {

// Alpha as designers write it, kept to the 8 bits that a style sheet and a painted pixel
// hold, so the colour a palette reads back from a style sheet equals its role.
QColor rgba(int red, int green, int blue, double alpha = 1.0)
{
    const QColor exact = BRColorHelper::color(red, green, blue, alpha);
    return QColor(exact.red(), exact.green(), exact.blue(), qRound(alpha * 255));
}

} // namespace

namespace Look {

namespace {

QColor lightColor(Color role)
{
    // No default: a role without a colour is a compile-time warning, and so an error.
    switch (role) {
    case Color::WindowGround:
        return rgba(255, 255, 255);
    case Color::HeaderGround:
        return rgba(246, 247, 249);
    case Color::BarGround:
        return rgba(250, 251, 252);
    case Color::PopoverGround:
        return rgba(251, 251, 252);
    case Color::TabBarGround:
        return rgba(38, 44, 56);
    case Color::ButtonBarGround:
        return rgba(247, 247, 247);
    case Color::RenameRowHover:
        return rgba(247, 248, 250);
    case Color::DuplicateRowHover:
        return rgba(57, 188, 25, 0.06);
    case Color::ThumbnailWell:
        return rgba(240, 241, 243);
    case Color::FieldGround:
        return rgba(255, 255, 255);
    case Color::ReadOnlyFieldGround:
        return rgba(246, 247, 249);
    case Color::Paper:
        return rgba(255, 255, 255);
    case Color::PaperFold:
        return rgba(240, 241, 243);
    case Color::PreviewGround:
        return rgba(243, 244, 246);
    case Color::DropZoneGround:
        return rgba(255, 255, 255, 0.55);
    case Color::DropZoneHighlight:
        return rgba(31, 201, 126, 0.08);
    case Color::ProgressTrack:
        return rgba(0, 0, 0, 0.08);

    case Color::PrimaryText:
        return rgba(38, 44, 56);
    case Color::SecondaryText:
        // The lightest grey that small text may have on the program's grounds (4.5:1).
        return rgba(0, 0, 0, 0.55);
    case Color::DisabledText:
        return rgba(193, 193, 193);
    case Color::PathSeparator:
        return rgba(191, 191, 191);
    case Color::PreviewText:
        return rgba(60, 60, 60);
    case Color::LinkText:
        return rgba(31, 140, 201);
    case Color::TextOnColor:
        return rgba(255, 255, 255);
    case Color::TabTitle:
        return rgba(255, 255, 255, 0.8);
    case Color::TabTitleSelected:
        return rgba(139, 247, 70);
    case Color::RuleName:
        return rgba(31, 201, 126);
    case Color::HandEditedName:
        return rgba(33, 193, 249);
    case Color::NewNamePlaceholder:
        return rgba(107, 107, 107);
    case Color::Placeholder:
        return rgba(155, 155, 155);
    case Color::PlainButtonText:
        return rgba(74, 74, 74);
    case Color::InactiveButtonText:
        return rgba(255, 255, 255, 0.5);
    case Color::ProblemMark:
        return rgba(200, 35, 51);

    case Color::Accent:
        return rgba(31, 201, 126);
    case Color::DuplicatesAccent:
        return rgba(57, 188, 25);
    case Color::DarkButtonGround:
        return rgba(0, 0, 0, 0.6);
    case Color::InactiveButtonGround:
        return rgba(128, 128, 128, 0.3);
    case Color::GlassButtonGround:
        return rgba(0, 0, 0, 0.3);
    case Color::GlassButtonPressed:
        return rgba(0, 0, 0, 0.45);
    case Color::MoreAppsGround:
        return rgba(35, 196, 142);
    case Color::MoreAppsPressed:
        return rgba(28, 160, 116);
    case Color::PlainButtonGround:
        return rgba(255, 255, 255);
    case Color::PlainButtonHover:
        return rgba(240, 240, 240);
    case Color::PlainButtonPressed:
        return rgba(228, 228, 228);
    case Color::ToolButtonHover:
        return rgba(0, 0, 0, 0.06);
    case Color::ToolButtonPressed:
        return rgba(0, 0, 0, 0.12);

    case Color::Divider:
        return rgba(0, 0, 0, 0.12);
    case Color::ButtonBarDivider:
        return rgba(226, 226, 226);
    case Color::RowSeparator:
        return rgba(0, 0, 0, 0.08);
    case Color::ControlBorder:
        return rgba(128, 128, 128, 0.5);
    case Color::ReadOnlyFieldBorder:
        return rgba(128, 128, 128, 0.25);
    case Color::BoxBorder:
        return rgba(128, 128, 128, 0.35);
    case Color::PlainButtonBorder:
        return rgba(205, 205, 205);
    case Color::SearchFieldBorder:
        return rgba(0, 0, 0, 0.15);
    case Color::FieldHoverBorder:
        return rgba(0, 0, 0, 0.10);
    case Color::FieldFocusBorder:
        return rgba(0, 0, 0, 0.22);
    case Color::PopoverBorder:
        return rgba(0, 0, 0, 0.18);
    case Color::PreviewBorder:
        return rgba(0, 0, 0, 0.11);
    case Color::DropZoneBorder:
        return rgba(0, 0, 0, 0.18);

    case Color::PageOutline:
        return rgba(0, 0, 0, 0.16);
    case Color::PageLines:
        return rgba(0, 0, 0, 0.12);
    case Color::ArrowMark:
        return rgba(0, 0, 0, 0.28);
    case Color::ControlMark:
        return rgba(0, 0, 0, 0.45);
    case Color::RemoveDisc:
        return rgba(0, 0, 0, 0.30);
    case Color::IconStroke:
        return rgba(120, 130, 145);
    case Color::FolderIconFill:
        return rgba(120, 170, 230);
    case Color::IconPageFill:
        return rgba(245, 246, 248);
    case Color::PreviewIconPageFill:
        return rgba(250, 250, 252);
    }
    return {};
}

// The same roles on dark grounds. Pictures of pages and the text previewed on them stay
// paper-light, as a document does in any dark program; the accents stay the brand's.
QColor darkColor(Color role)
{
    switch (role) {
    case Color::WindowGround:
        return rgba(36, 38, 43);
    case Color::HeaderGround:
        return rgba(44, 47, 53);
    case Color::BarGround:
        return rgba(40, 43, 49);
    case Color::PopoverGround:
        return rgba(46, 49, 55);
    case Color::TabBarGround:
        return rgba(24, 27, 33);
    case Color::ButtonBarGround:
        return rgba(44, 47, 53);
    case Color::RenameRowHover:
        return rgba(48, 51, 58);
    case Color::DuplicateRowHover:
        return rgba(57, 188, 25, 0.10);
    case Color::ThumbnailWell:
        return rgba(56, 60, 67);
    case Color::FieldGround:
        return rgba(28, 30, 34);
    case Color::ReadOnlyFieldGround:
        return rgba(44, 47, 53);
    case Color::Paper:
        return rgba(232, 234, 237);
    case Color::PaperFold:
        return rgba(200, 204, 210);
    case Color::PreviewGround:
        return rgba(52, 55, 62);
    case Color::DropZoneGround:
        return rgba(255, 255, 255, 0.04);
    case Color::DropZoneHighlight:
        return rgba(31, 201, 126, 0.16);
    case Color::ProgressTrack:
        return rgba(255, 255, 255, 0.12);

    case Color::PrimaryText:
        return rgba(232, 234, 238);
    case Color::SecondaryText:
        return rgba(255, 255, 255, 0.64);
    case Color::DisabledText:
        return rgba(112, 115, 122);
    case Color::PathSeparator:
        return rgba(125, 128, 135);
    case Color::PreviewText:
        return rgba(60, 60, 60);
    case Color::LinkText:
        return rgba(100, 185, 245);
    case Color::TextOnColor:
        return rgba(255, 255, 255);
    case Color::TabTitle:
        return rgba(255, 255, 255, 0.8);
    case Color::TabTitleSelected:
        return rgba(139, 247, 70);
    case Color::RuleName:
        return rgba(64, 220, 152);
    case Color::HandEditedName:
        return rgba(90, 205, 250);
    case Color::NewNamePlaceholder:
        return rgba(165, 168, 174);
    case Color::ProblemMark:
        return rgba(255, 118, 118);
    case Color::Placeholder:
        return rgba(150, 153, 160);
    case Color::PlainButtonText:
        return rgba(228, 230, 234);
    case Color::InactiveButtonText:
        return rgba(255, 255, 255, 0.5);

    case Color::Accent:
        return rgba(31, 201, 126);
    case Color::DuplicatesAccent:
        return rgba(57, 188, 25);
    case Color::DarkButtonGround:
        return rgba(255, 255, 255, 0.16);
    case Color::InactiveButtonGround:
        return rgba(128, 128, 128, 0.3);
    case Color::GlassButtonGround:
        return rgba(0, 0, 0, 0.3);
    case Color::GlassButtonPressed:
        return rgba(0, 0, 0, 0.45);
    case Color::MoreAppsGround:
        return rgba(35, 196, 142);
    case Color::MoreAppsPressed:
        return rgba(28, 160, 116);
    case Color::PlainButtonGround:
        return rgba(52, 55, 62);
    case Color::PlainButtonHover:
        return rgba(62, 66, 74);
    case Color::PlainButtonPressed:
        return rgba(72, 76, 85);
    case Color::ToolButtonHover:
        return rgba(255, 255, 255, 0.08);
    case Color::ToolButtonPressed:
        return rgba(255, 255, 255, 0.16);

    case Color::Divider:
        return rgba(255, 255, 255, 0.12);
    case Color::ButtonBarDivider:
        return rgba(62, 66, 73);
    case Color::RowSeparator:
        return rgba(255, 255, 255, 0.08);
    case Color::ControlBorder:
        return rgba(160, 160, 160, 0.5);
    case Color::ReadOnlyFieldBorder:
        return rgba(160, 160, 160, 0.25);
    case Color::BoxBorder:
        return rgba(160, 160, 160, 0.35);
    case Color::PlainButtonBorder:
        return rgba(84, 88, 96);
    case Color::SearchFieldBorder:
        return rgba(255, 255, 255, 0.18);
    case Color::FieldHoverBorder:
        return rgba(255, 255, 255, 0.14);
    case Color::FieldFocusBorder:
        return rgba(255, 255, 255, 0.30);
    case Color::PopoverBorder:
        return rgba(255, 255, 255, 0.18);
    case Color::PreviewBorder:
        return rgba(255, 255, 255, 0.12);
    case Color::DropZoneBorder:
        return rgba(255, 255, 255, 0.24);

    case Color::PageOutline:
        return rgba(0, 0, 0, 0.16);
    case Color::PageLines:
        return rgba(0, 0, 0, 0.12);
    case Color::ArrowMark:
        return rgba(255, 255, 255, 0.36);
    case Color::ControlMark:
        return rgba(255, 255, 255, 0.58);
    case Color::RemoveDisc:
        return rgba(255, 255, 255, 0.34);
    case Color::IconStroke:
        return rgba(120, 130, 145);
    case Color::FolderIconFill:
        return rgba(120, 170, 230);
    case Color::IconPageFill:
        return rgba(245, 246, 248);
    case Color::PreviewIconPageFill:
        return rgba(250, 250, 252);
    }
    return {};
}

} // namespace

Tone tone()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return Tone::Light;
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? Tone::Dark
                                                                                : Tone::Light;
}

QColor color(Color role)
{
    return color(role, tone());
}

QColor color(Color role, Tone tone)
{
    return tone == Tone::Dark ? darkColor(role) : lightColor(role);
}

} // namespace Look
