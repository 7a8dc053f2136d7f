"""A data server that says little and counts what it is asked for."""

import http.server
import threading


class SmallServer(http.server.ThreadingHTTPServer):
    """Answers the probe, publishes an empty list and no version, and has no stream at /gone. Counts who asks for that, and
    for the version. Keeps everybody waiting while it is not `answering`."""

    def __init__(self):
        super().__init__(("127.0.0.1", 0), SmallServer.Handler)
        self.answering = threading.Event()
        self.answering.set()
        self.requests = 0
        self.attempts = 0
        self.checks = 0
        threading.Thread(target=self.serve_forever, daemon=True).start()

    @property
    def address(self):
        return f"http://127.0.0.1:{self.server_port}/"

    class Handler(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            self.server.requests += 1
            self.server.answering.wait()
            self.server.attempts += self.path == "/gone"
            found = self.path != "/gone"
            self.send_response(200 if found else 404)
            self.end_headers()

        def do_POST(self):
            self.server.checks += 1
            self.send_error(404)

        def log_message(self, *_):
            pass
