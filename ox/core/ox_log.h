#ifndef OX_CORE_OX_LOG_H
#define OX_CORE_OX_LOG_H

/*
 * The log of the process: a text file, optionally echoed to standard output. Valid C; the
 * functions have C linkage, so that programs in any language can call them.
 *
 * Unless told otherwise the log is on, goes to "ox_log.txt" in the working directory and is not
 * echoed. The first message of the process truncates the file, later ones append to it. Every
 * message opens and closes the file, so the log survives a crash of the program.
 *
 * A message is finished text: callers format it themselves. Failures are silent; a file that cannot
 * be opened loses the message. Only ox_log_thread_safe may be called by several threads at once.
 */

#include <ox/core/ox_export.h>

#ifdef __cplusplus
extern "C" {
#else
#include <stdbool.h>
#endif

/**
 * Writes `message` and a newline to the log; null is an empty message.
 *
 * The echo, when on, comes first and even when the log is off. It has no newline added, and the
 * message is its format: "%%" is echoed as "%". There are no arguments, so any other conversion is
 * echoed as it stands. The file gets the message literally.
 *
 * When the file cannot be opened for the first message, the next one tries to truncate it again.
 */
OX_EXPORT void ox_log(const char* message);

/** True if messages go to the file. */
OX_EXPORT bool ox_log_get(void);

/** Switches the writing to the file on or off; the echo is not concerned. */
OX_EXPORT void ox_log_set(bool enabled);

/** Switches the echo to standard output on or off. */
OX_EXPORT void ox_log_std_output(bool enabled);

/** Does what ox_log does, one calling thread at a time. */
OX_EXPORT void ox_log_thread_safe(const char* message);

/**
 * Sends the messages from now on to the file `path`, which is copied; null chooses the default name
 * again. Only the first message of the process truncates: once one was written, the new file is
 * appended to. A pipe that nobody reads cannot be opened, a device can. Other threads may be inside
 * ox_log_thread_safe. Each name is kept until the process ends, once however often it is chosen.
 */
OX_EXPORT void ox_set_log_file(const char* path);

#ifdef __cplusplus
} /* extern "C" */

namespace ox {
using ::ox_log;
using ::ox_log_get;
using ::ox_log_set;
using ::ox_log_std_output;
using ::ox_log_thread_safe;
using ::ox_set_log_file;
} // namespace ox
#endif

#endif
