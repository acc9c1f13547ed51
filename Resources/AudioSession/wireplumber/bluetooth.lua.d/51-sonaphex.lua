-- SPDX-FileCopyrightText: 2026 The Sonaphex authors
-- SPDX-License-Identifier: GPL-3.0-or-later
bluez_monitor.enabled = false
