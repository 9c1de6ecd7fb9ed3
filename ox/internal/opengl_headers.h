#ifndef OX_INTERNAL_OPENGL_HEADERS_H
#define OX_INTERNAL_OPENGL_HEADERS_H

// The headers of OpenGL and of its utility library. On Windows they need those of the system first,
// whose macros would otherwise hide std::min and std::max.

#if defined(_WIN32)
#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#if !defined(WIN32_LEAN_AND_MEAN)
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#endif

#include <GL/gl.h>
#include <GL/glu.h>

// The calling convention of the tessellator's callbacks, where there are several.
#if !defined(CALLBACK)
#define CALLBACK
#endif

#endif
