#ifndef OX_EXAMPLES_PROGRESS_INTERRUPTION_H
#define OX_EXAMPLES_PROGRESS_INTERRUPTION_H

namespace progress_example {

/// From now on Ctrl-C no longer ends the program, but is noted here.
void note_interruptions();

/// Whether Ctrl-C was pressed since the last `forget_interruption`.
bool was_interrupted();

void forget_interruption();

} // namespace progress_example

#endif
