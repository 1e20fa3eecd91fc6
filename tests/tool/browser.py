"""Chromium without a window, by its debugging pipe: messages of JSON that end with a zero byte."""
import json
import os
import subprocess


class Browser:
    def __init__(self, folder):
        ours, theirs = os.pipe(), os.pipe()
        os.set_inheritable(ours[0], True)
        os.set_inheritable(theirs[1], True)
        # The browser has them as 3 and 4.
        self.process = subprocess.Popen(
            ["sh", "-c", f'exec "$@" 3<&{ours[0]} 4>&{theirs[1]}', "sh", "chromium",
             "--headless=new", "--no-sandbox", "--disable-gpu", "--disable-background-networking",
             "--no-first-run", f"--user-data-dir={folder}", "--remote-debugging-pipe"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, pass_fds=(ours[0], theirs[1]))
        os.close(ours[0])
        os.close(theirs[1])
        self.out, self.inputs = os.fdopen(ours[1], "wb", buffering=0), os.fdopen(theirs[0], "rb")
        self.rest, self.number, self.session, self.events = b"", 0, None, []
        target = self("Target.createTarget", url="about:blank")["targetId"]
        self.session = self("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in "Page", "Network", "Runtime", "Log":
            self(f"{domain}.enable")

    def __call__(self, method, **parameters):
        """What a method answers; events that come meanwhile are kept."""
        self.number += 1
        message = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            message["sessionId"] = self.session
        self.out.write(json.dumps(message).encode() + b"\0")
        while (answer := self._next()).get("id") != self.number:
            self.events.append(answer)
        if "error" in answer:
            raise RuntimeError(f"{method}: {answer['error']}")
        return answer["result"]

    def _next(self):
        while b"\0" not in self.rest:
            piece = os.read(self.inputs.fileno(), 1 << 16)
            if not piece:
                raise RuntimeError("the browser has ended")
            self.rest += piece
        message, self.rest = self.rest.split(b"\0", 1)
        return json.loads(message)

    def open(self, address):
        self.events = []
        self("Page.navigate", url=address)
        while not any(one.get("method") == "Page.loadEventFired" for one in self.events):
            self.events.append(self._next())

    def value(self, expression):
        result = self("Runtime.evaluate", expression=expression, returnByValue=True)
        if "exceptionDetails" in result:
            raise RuntimeError(json.dumps(result["exceptionDetails"]))
        return result["result"].get("value")

    def key(self, key):
        self("Input.dispatchKeyEvent", type="keyDown", key=key, text=key if len(key) == 1 else "")
        self("Input.dispatchKeyEvent", type="keyUp", key=key)

    def of(self, *methods):
        """Parameters of the events so far."""
        return [one["params"] for one in self.events if one.get("method") in methods]

    def close(self):
        self.process.terminate()
        self.process.wait(20)
        self.out.close()
        self.inputs.close()
