"""The Conan 2 recipe of the sources that it lies in: conan create packaging/conan"""

import os

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy


class OxUtilities(ConanFile):
    name = "ox_utilities"
    version = "1.0.0"
    license = "MIT"
    description = "Geometry and utility classes for building-modelling applications"
    package_type = "library"
    settings = "os", "compiler", "build_type", "arch"
    options = {"shared": [True, False], "fPIC": [True, False]}
    default_options = {"shared": True, "fPIC": True}
    implements = ["auto_shared_fpic"]

    def export_sources(self):
        project = os.path.join(self.recipe_folder, "..", "..")
        for pattern in ("CMakeLists.txt", "CMakePresets.json", "LICENSE", "cmake/*", "ox/*",
                        "packaging/debuggers/*"):
            copy(self, pattern, project, self.export_sources_folder)

    def requirements(self):
        self.requires("clipper/6.4.2")
        self.requires("opengl/system")
        self.requires("glu/system")
        self.requires("utfcpp/[>=3.2]")

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["OX_BUILD_TESTS"] = False
        toolchain.cache_variables["OX_BUILD_EXAMPLES"] = False
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "ox_utilities")
        self.cpp_info.set_property("cmake_target_name", "ox_utilities::ox_utilities")
        self.cpp_info.set_property("pkg_config_name", "ox_utilities")
        self.cpp_info.libs = ["ox_utilities"]
        if not self.options.shared:
            self.cpp_info.defines = ["OX_STATIC"]
