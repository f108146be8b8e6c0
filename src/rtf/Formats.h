#pragma once

#include <QTextFormat>

namespace schedules::rtf {

struct Look;
struct Paragraph;
struct Tables;

inline constexpr int kTwipsPerInch = 1440;

/// A look as the document's format: what the widget or its palette decides is not in it.
QTextCharFormat CharFormatOf(const Look& look, const Tables& tables);

/// Lengths are made pixels. Indents are bounded, so that a paragraph never leaves the widget.
QTextBlockFormat BlockFormatOf(const Paragraph& paragraph, const Tables& tables, qreal dotsPerInch);

} // namespace schedules::rtf
