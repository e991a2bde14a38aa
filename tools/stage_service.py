"""How programs on a stage ask for what only the stage can do: by files in a folder.

Who wants something puts a file "request" into the folder. The file goes when that is done, and
"answer" then holds "done", what was asked for, or what went wrong.
"""

import os
import time

POLL_SECONDS = 0.01


def serve(folder, answer_to):
    request, answer, draft = folder / "request", folder / "answer", folder / "answer.new"
    while True:
        if request.exists():
            wanted = request.read_text(encoding="utf-8").strip()
            draft.write_text(answer_to(wanted), encoding="utf-8")
            request.unlink()
            os.replace(draft, answer)
        time.sleep(POLL_SECONDS)
