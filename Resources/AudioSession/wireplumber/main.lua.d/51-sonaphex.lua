-- SPDX-FileCopyrightText: 2026 The Sonaphex authors
-- SPDX-License-Identifier: GPL-3.0-or-later
-- No hardware, no message bus and nothing remembered: the session lives as long as the program.
alsa_monitor.enabled = false
v4l2_monitor.enabled = false
libcamera_monitor.enabled = false
default_access.properties["enable-flatpak-portal"] = false
stream_defaults.enabled = false
device_defaults.properties["use-persistent-storage"] = false
