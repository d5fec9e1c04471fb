# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

class ConanException(Exception):
    pass


class ConanInvalidConfiguration(ConanException):
    pass
