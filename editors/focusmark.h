#pragma once

class QWidget;

/// Shows over what the widget has painted that it has the focus, nothing when it has not. To be called while
/// it paints, where the style sheet has taken the toolkit's own mark away.
void drawFocusMark(QWidget *widget);
