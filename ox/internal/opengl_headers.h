#ifndef OX_INTERNAL_OPENGL_HEADERS_H
#define OX_INTERNAL_OPENGL_HEADERS_H

// The headers of OpenGL and its utility library, in the one order that works everywhere: those of
// Windows rest on windows.h, and only that defines CALLBACK.

#if defined(_WIN32)
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>
#endif

#include <GL/gl.h>
#include <GL/glu.h>

#if !defined(CALLBACK)
#define CALLBACK
#endif

#endif
