#!/usr/bin/env bats
# For those who write shell scripts. It runs inside a TV: ./tv shell -- bats examples
bats_require_minimum_version 1.5.0

teardown() { veskar-mw --ui-id 0 close; }

@test "the viewer says no" {
    veskar-mw --ui-id 7 message --title Card --text "Renew now?" --button Yes --button No >"$BATS_TEST_TMPDIR/answer" &
    veskar-remote wait --text "Renew now" --ui-id 7
    veskar-remote press Right Return
    wait $!
    grep '"label":"No"' "$BATS_TEST_TMPDIR/answer"
}

@test "the status tells of Back" {
    { veskar-remote wait --text "Parental PIN" && veskar-remote press Back; } &
    run -1 veskar-mw pin --title "Parental PIN"
    [[ $output == *'"result":"back"'* ]]
}

@test "nobody answers in time" {
    run -3 veskar-mw --timeout 0.5 message --title Card --button OK
    veskar-remote wait --shown
    veskar-remote shot "$BATS_TEST_TMPDIR/card.png"
}
