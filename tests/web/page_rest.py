"""The page at rest: it computes nothing, asks nobody, and may not."""
import time

import page_case

IDLE = 2  # seconds
POLICY = "document.querySelector('meta[http-equiv=Content-Security-Policy]').content"


class Rest(page_case.PageCase):
    def assert_sleeps(self):
        self.desk.rest()
        self.page.evaluate("painted()")
        before = self.page.evaluate("wakes")
        time.sleep(IDLE)
        self.assertEqual(self.page.evaluate("[wakes, sleepsFor < 0]"), [before, True])

    def test_nothing_wakes_an_idle_page(self):
        desk = self.desk
        desk.open()
        desk.click("frmSplash", 100, 100)
        desk.until(desk.window("SizeSelect"))
        self.assert_sleeps()
        desk.press("Small", "SizeSelect")
        desk.until("windowOf(771)")
        self.assert_sleeps()
        desk.choose("Pencil tool")
        desk.stroke((40, 40), (90, 60))
        desk.move("Form1", 5, 350)
        self.assert_sleeps()
        desk.choose("Help")
        self.assert_sleeps()

    def test_the_policy_lets_nothing_out(self):
        self.desk.open()
        policy = dict(rule.split(" ", 1) for rule in self.page.evaluate(POLICY).split("; "))
        self.assertEqual(policy["default-src"], "'none'")
        self.assertEqual(policy["connect-src"], "'none'")
        for rule in ("script-src", "style-src"):
            self.assertNotIn("unsafe-inline", policy[rule])
            self.assertNotIn("http", policy[rule])
        refused = self.page.evaluate("""new Promise((done) => {
            addEventListener('securitypolicyviolation', (event) => done(event.blockedURI), {once: true});
            new Image().src = 'http://127.0.0.1:1/picture.png';
        })""")
        self.assertTrue(refused.startswith("http://127.0.0.1:1"), refused)
        self.desk.open()  # some tell what was refused too
