# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
#
# From a clone: nix-build --expr 'with import <nixpkgs> { }; qt6Packages.callPackage THIS_FILE { }'
{
  lib,
  stdenv,
  cmake,
  ninja,
  pkg-config,
  wrapQtAppsHook,
  glib,
  qtbase,
  qtdeclarative,
  qtsvg,
  qtwayland,
  systemd,
  wayland,
  wayland-protocols,
  wayland-scanner,
  xdg-utils,
  xorg,
}:

stdenv.mkDerivation {
  pname = "ferrin";
  version = "0.1.0";

  src = lib.cleanSourceWith {
    src = lib.cleanSource ../..;
    filter = path: _: !builtins.elem (baseNameOf path) [ "build" "out" ];
  };

  nativeBuildInputs = [
    cmake
    ninja
    pkg-config
    wayland-scanner
    wrapQtAppsHook
  ];

  buildInputs = [
    qtbase
    qtdeclarative
    qtsvg
    qtwayland
    systemd
    wayland
    wayland-protocols
    xorg.libxcb
  ];

  cmakeBuildType = "RelWithDebInfo";
  cmakeFlags = [ (lib.cmakeBool "BUILD_TESTING" false) ];

  # Nothing but the session's own is found by its name alone.
  qtWrapperArgs = [ "--suffix PATH : ${lib.makeBinPath [ xdg-utils ]}" ];
  postInstall = ''
    substituteInPlace $out/share/applications/org.ferrin.Ferrin.desktop \
      --replace-fail =gapplication =${lib.getExe' glib "gapplication"}
  '';

  meta = {
    description = "Battery utility for the status area of a desktop";
    license = with lib.licenses; [
      gpl3Plus
      hpndSellVariant
      mit
    ];
    mainProgram = "ferrin";
    platforms = lib.platforms.linux;
  };
}
