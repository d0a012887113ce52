"""Recipe for Conan 2; it builds from the checkout that it lies in: conan create packaging/conan"""

import os

from conan import ConanFile
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir


class KQtUiRecipe(ConanFile):
    name = "kqtui"
    version = "1.0.0"
    description = "Reusable user-interface components for desktop applications on Qt 5 Widgets"
    license = "MIT"
    topics = ("qt", "widgets", "gui")
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False], "fPIC": [True, False]}
    default_options = {"shared": True, "fPIC": True}
    implements = ["auto_shared_fpic"]

    # What the library is built from, seen from the top of the checkout.
    sources = (
        "CMakeLists.txt",
        "LICENSE",
        "KQt/*",
        "cmake/*",
        "docs/CMakeLists.txt",
        "docs/Doxyfile.in",
        "plugins/*",
        "support/*",
        "translations/*",
    )

    def export_sources(self):
        checkout = os.path.normpath(os.path.join(self.recipe_folder, "..", ".."))
        for pattern in self.sources:
            copy(self, pattern, src=checkout, dst=self.export_sources_folder)

    def requirements(self):
        # The headers include Qt's and Boost's.
        self.requires("qt/[>=5.15 <6]", transitive_headers=True, transitive_libs=True)
        self.requires("boost/[>=1.65]", transitive_headers=True)
        self.requires("glog/[>=0.6]")

    def validate(self):
        check_min_cppstd(self, 17)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        for part in ("TESTS", "EXAMPLES", "BENCHMARKS", "FUZZERS", "DESIGNER_PLUGIN"):
            toolchain.cache_variables["KQTUI_BUILD_" + part] = False
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", src=self.source_folder, dst=os.path.join(self.package_folder, "licenses"))
        CMake(self).install()
        # Conan writes these itself, from package_info().
        for folder in ("cmake", "pkgconfig"):
            rmdir(self, os.path.join(self.package_folder, "lib", folder))
        rmdir(self, os.path.join(self.package_folder, "share", "doc"))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "KQtUi")
        self.cpp_info.set_property("cmake_target_name", "KQtUi::KQtUi")
        self.cpp_info.set_property("pkg_config_name", "kqtui")
        self.cpp_info.libs = ["KQtUi"]
        self.cpp_info.requires = ["qt::qtWidgets", "boost::headers", "glog::glog"]
        if self.settings.os in ("Linux", "FreeBSD"):
            self.cpp_info.requires.append("qt::qtDBus")
        if not self.options.shared:
            self.cpp_info.libs += ["kqtui-kqtutil", "kqtui-basalt"]
            self.cpp_info.defines = ["KQTUI_STATIC"]
            if self.settings.os in ("Linux", "FreeBSD"):
                self.cpp_info.system_libs = ["dl"]
            elif self.settings.os == "Windows":
                self.cpp_info.system_libs = ["ole32", "shell32", "shlwapi", "uuid"]
