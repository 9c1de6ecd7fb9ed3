#ifndef OX_OX_FUNCTIONS_H
#define OX_OX_FUNCTIONS_H

#include <ox/core/ox_export.h>

/// @file
/// The free functions of core and geometry. Each is in namespace `ox` and, as the same entity, in
/// the global namespace, so that a qualified and an unqualified call always agree.

namespace ox {

// Dates: process-wide change stamps. The counter is not synchronised; threads that take dates at
// the same time may receive the same one.

/// The date given out last, 0 before the first.
OX_EXPORT unsigned int ox_get_date();

/// A new date, one above the last: 1, 2, 3, ... It starts again from 0 after 2^32 - 1 dates.
OX_EXPORT unsigned int ox_get_new_date();

// Memory of the current process, as the system counts it; 0 where the system does not tell.

/// The memory the process holds in RAM, in bytes.
OX_EXPORT long long ox_get_memory_occupation();

/// The most memory the process ever held in RAM, in bytes.
OX_EXPORT long long ox_get_peak_memory_occupation();

/// The memory the process holds in RAM, in units of 1048576 bytes.
OX_EXPORT double ox_get_memory_occupation_mb();

} // namespace ox

using ox::ox_get_date;
using ox::ox_get_memory_occupation;
using ox::ox_get_memory_occupation_mb;
using ox::ox_get_new_date;
using ox::ox_get_peak_memory_occupation;

#endif
