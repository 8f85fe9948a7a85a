# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Ferrin developers
"""A life at random: whatever happens to the laptop, the item answers with words that can be true,
is right again once the laptop is, and has kept nothing."""

import os

from harness.case import AT_START, OnADesktop, main
from harness.holdings import Holdings
from harness.processes import a_moment
from harness.randomlife import RandomLife

# The same life again: FERRIN_TEST_SEED=...
SEED = int(os.environ.get("FERRIN_TEST_SEED", "20260101"))
CHAPTERS = 12
OPERATIONS = 100


class ALifeAtRandom(OnADesktop):
    def test_the_item_answers_throughout_and_is_right_in_the_end(self):
        program = self.start()
        program.says(AT_START)
        life = RandomLife(self.laptop, program, SEED)
        for chapter in range(CHAPTERS):
            life.live(OPERATIONS)
            life.come_to_rest()
            # The first chapters fill caches.
            if chapter == 3:
                a_moment()
                before = Holdings(self.session, program)
        a_moment()
        after = Holdings(self.session, program)
        print(f"\nseed {SEED}: {dict(sorted(life.done.items()))}; before {before}; after {after}; "
              f"slowest answer {life.slowest * 1000:.0f} ms")
        self.assertEqual(after.exceed(before), [])


if __name__ == "__main__":
    main()
