#ifndef OX_CORE_OX_EXPORT_H
#define OX_CORE_OX_EXPORT_H

/* OX_EXPORT marks what the shared library offers; everything else stays hidden. Whoever links the
   static library defines OX_STATIC (the package files do). */
#if defined(OX_STATIC)
#define OX_EXPORT
#elif defined(_WIN32)
#if defined(OX_BUILDING_LIBRARY)
#define OX_EXPORT __declspec(dllexport)
#else
#define OX_EXPORT __declspec(dllimport)
#endif
#else
#define OX_EXPORT __attribute__((visibility("default")))
#endif

#endif
