// Interface identifiers of loadable packages.
#pragma once
#define VRX_DESIGN_PACKAGE_IID "orlenvo.DesignPackage/1.0"
#define VRX_LIBRARY_PACKAGE_IID "orlenvo.LibraryPackage/1.0"
