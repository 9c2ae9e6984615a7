#pragma once

#include <QString>

// The names of the kinds the program asks about. Files are identified by MIME type names;
// these are the broader kinds (and a few named document formats) they can belong to.
namespace UniformTypes {
inline const QString image = QStringLiteral("public.image");
inline const QString audio = QStringLiteral("public.audio");
inline const QString movie = QStringLiteral("public.movie");
inline const QString content = QStringLiteral("public.content");
inline const QString text = QStringLiteral("public.text");
inline const QString sourceCode = QStringLiteral("public.source-code");
inline const QString rtf = QStringLiteral("public.rtf");
inline const QString pdf = QStringLiteral("com.adobe.pdf");
inline const QString rtfd = QStringLiteral("com.apple.rtfd");
inline const QString flatRtfd = QStringLiteral("com.apple.flat-rtfd");
inline const QString utf8PlainText = QStringLiteral("public.utf8-plain-text");
inline const QString utf16ExternalPlainText = QStringLiteral("public.utf16-external-plain-text");
inline const QString utf16PlainText = QStringLiteral("public.utf16-plain-text");
inline const QString wordDocument = QStringLiteral("com.microsoft.word.doc");
inline const QString wordOpenXmlDocument =
    QStringLiteral("org.openxmlformats.wordprocessingml.document");
inline const QString numbersDocument = QStringLiteral("com.apple.iwork.numbers.numbers");
// Texts, spreadsheets and presentations of LibreOffice and the other OpenDocument programs.
inline const QString openDocument = QStringLiteral("org.oasis-open.opendocument");
inline const QString xcodeProject = QStringLiteral("com.apple.xcode.projectdata");
inline const QString storyboard =
    QStringLiteral("com.apple.dt.interfacebuilder.document.storyboard");
inline const QString cocoaNib = QStringLiteral("com.apple.interfacebuilder.document.cocoa");
} // namespace UniformTypes
